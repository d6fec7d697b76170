#include "cartbrowser/FindCart.h"

#include "tests/cartbrowser/FindCartFixture.h"

namespace logchecker {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(FindCartTest, TheTolerancesAreAsTabled) {
  const std::pair<const char*, int32_t> rows[] = {{"3 Seconds", 3},   {"5 Seconds", 5},
                                                  {"10 Seconds", 10}, {"30 Seconds", 30},
                                                  {"1 Minute", 60},   {"5 Minutes", 300}};
  for (size_t row = 0; row < kLengthTolerances.size(); ++row) {
    EXPECT_STREQ(rows[row].first, kLengthTolerances[row].text);
    EXPECT_EQ(rows[row].second, kLengthTolerances[row].seconds);
  }
}

TEST_F(FindCartTest, AWalkListsWhatMatchesInItsOrder) {
  find.StartCart = 100;
  FindText("cart");
  EXPECT_THAT(Found(), ElementsAre(100, 101, 150, 200, 299, 300));
  EXPECT_EQ(201, events.yields);
  find.input.Direction = SearchDirection::kBackwards;
  FindText("cart");
  EXPECT_THAT(Found(), ElementsAre(100, 99, 50, 5, 1));
}

TEST_F(FindCartTest, AListFileThatWasReplacedIsSearchedAsItIsNow) {
  find.StartCart = 290;
  FindText("A CART");
  EXPECT_THAT(Found(), ElementsAre(0));
  ReplaceListFile(1, 60.0F);
  FindText("A CART");
  EXPECT_EQ(11U, Found().size());
}

TEST_F(FindCartTest, FromTheStartOrTheEndTheStartCartDoesNotCount) {
  find.StartCart = 200;
  find.input.SearchFromStart = true;
  FindText("1");
  EXPECT_THAT(Found(), ElementsAre(1, 100, 101, 150));
  find.input.Direction = SearchDirection::kBackwards;
  FindText("1");
  EXPECT_THAT(Found(), ElementsAre(150, 101, 100, 1));
}

TEST_F(FindCartTest, TheRulesAreThoseOfTheControls) {
  find.input.LimitLines = true;
  find.input.Lines = {false, true, true};
  FindText("cart");
  EXPECT_THAT(Found(), ElementsAre(0));
  find.input.Lines = {true, false, false};
  FindText("cart 5");
  EXPECT_THAT(Found(), ElementsAre(5, 50));
  find.input.LimitLines = false;
  find.input.TimeSearch = true;
  find.input.Length = "01:40";
  find.input.ToleranceRow = 0;
  FindText("*");
  EXPECT_THAT(Found(), ElementsAre(99, 100, 101));
  find.input.ToleranceRow = 4;
  FindText("*");
  EXPECT_THAT(Found(), ElementsAre(50, 99, 100, 101, 150));
  find.input.TimeSearch = false;
  find.input.Notes = true;
  folder().WriteFile("part1/VEL00150.TXT", "June");
  FindText("june");
  EXPECT_THAT(Found(), ElementsAre(150));
}

TEST_F(FindCartTest, APartlyFilledLengthCountsWhatItHolds) {
  const std::pair<const char*, int32_t> cases[] = {
      {"01:40", 100}, {"__:50", 50}, {"01:__", 60}, {"__:__", 0}, {"1_:4_", 64}};
  for (const auto& [text, seconds] : cases) {
    PutCart(20, static_cast<float>(seconds));
    find.input = FindCartInput();
    find.input.TimeSearch = true;
    find.input.ToleranceRow = 0;
    find.input.Length = text;
    FindText("a cart");
    EXPECT_THAT(Found(), ElementsAre(20)) << text;
  }
}

TEST_F(FindCartTest, WhileAWalkRunsOnlyStopCanBePressed) {
  FindCartView running;
  events.onYield = [&](int) {
    running = find.view();
    find.Find();  // the button is disabled: nothing happens
  };
  find.input.LimitLines = true;
  find.input.TimeSearch = true;
  FindText("*");
  EXPECT_EQ(300, events.yields);
  EXPECT_FALSE(running.FindEnabled);
  EXPECT_TRUE(running.StopEnabled);
  EXPECT_FALSE(running.SearchEnabled);
  EXPECT_FALSE(running.LinesEnabled);
  EXPECT_FALSE(running.LengthEnabled);
  EXPECT_TRUE(running.ProgressVisible);
  EXPECT_TRUE(running.ResultsVisible);
  EXPECT_EQ(5130, running.Height);
  EXPECT_TRUE(find.view().FindEnabled);
  EXPECT_FALSE(find.view().StopEnabled);
  EXPECT_TRUE(find.view().SearchEnabled);
  EXPECT_TRUE(find.view().LinesEnabled);
  EXPECT_TRUE(find.view().LengthEnabled);
  EXPECT_FALSE(find.view().ProgressVisible);
  EXPECT_EQ(5130, find.view().Height);
}

TEST_F(FindCartTest, TheCartOfProgressIsTheStartCartThenEachHundredthOne) {
  std::vector<int32_t> shown = {0};
  events.onYield = [&](int) {
    if (shown.back() != find.view().ProgressCart) shown.push_back(find.view().ProgressCart);
  };
  find.StartCart = 42;
  FindText("*");
  EXPECT_THAT(shown, ElementsAre(0, 42, 100, 200, 300));
  EXPECT_EQ(3, face.progressPainted);
  // The start cart is shown even where the walk begins at an end.
  shown = {0};
  find.input.SearchFromStart = true;
  FindText("*");
  EXPECT_THAT(shown, ElementsAre(0, 42, 100, 200, 300));
}

TEST_F(FindCartTest, TheAnimationPlaysForAsLongAsTheWalkRuns) {
  bool played = false;
  events.onYield = [&](int) { played = face.playing; };
  FindText("*");
  EXPECT_TRUE(played);
  EXPECT_FALSE(face.playing);
  find.AnimationMissing = true;
  face.stops = 0;
  FindText("*");
  EXPECT_FALSE(played);
  EXPECT_EQ(0, face.stops);
}

TEST_F(FindCartTest, AtItsEndTheFirstRowIsSelectedAndTheListHasTheFocus) {
  face.focus.clear();
  FindText("*");
  EXPECT_EQ(0U, find.results().SelectedRow());
  EXPECT_THAT(face.focus,
              ElementsAre(FindControl::kStop, FindControl::kSearchText, FindControl::kResults));
  EXPECT_EQ(10U, face.rowsAdded.size());
}

TEST_F(FindCartTest, OnTheSecondTabTheTextBoxIsNotGivenTheFocus) {
  find.KeyDown(9, true);
  face.focus.clear();
  FindText("*");
  EXPECT_THAT(face.focus, ElementsAre(FindControl::kStop, FindControl::kResults));
}

TEST_F(FindCartTest, ARowSelectedDuringTheWalkStaysSelected) {
  events.onYield = [&](int yields) {
    if (yields == 60) find.SelectRow(1);
  };
  FindText("*");
  EXPECT_EQ(1U, find.results().SelectedRow());
}

TEST_F(FindCartTest, WithoutAResultARowSaysSo) {
  FindText("nothing like it");
  EXPECT_EQ(1U, find.results().Count());
  EXPECT_EQ("No carts found.", find.results().Row(0).texts[kFoundLine1]);
  EXPECT_EQ(0U, find.results().SelectedRow());
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(FindCartTest, AStartCartBehindTheStoreFindsNothing) {
  find.StartCart = 301;
  FindText("*");
  EXPECT_EQ(0, events.yields);
  EXPECT_EQ("No carts found.", find.results().Row(0).texts[kFoundLine1]);
}

TEST_F(FindCartTest, StopLeavesWhatWasFoundAndSelectsNothing) {
  events.onYield = [&](int yields) {
    if (yields == 50) find.Stop();
  };
  face.focus.clear();
  FindText("*");
  EXPECT_EQ(50, events.yields);
  EXPECT_THAT(Found(), ElementsAre(1, 5, 50));
  EXPECT_FALSE(find.results().SelectedRow().has_value());
  EXPECT_THAT(face.focus, ElementsAre(FindControl::kStop, FindControl::kSearchText));
  EXPECT_TRUE(face.visible);
  EXPECT_TRUE(find.view().FindEnabled);
  EXPECT_THAT(browser.jumps, IsEmpty());
}

TEST_F(FindCartTest, StopBeforeAnythingWasFoundAddsNoRow) {
  events.onYield = [&](int) { find.Stop(); };
  FindText("nothing like it");
  EXPECT_EQ(1, events.yields);
  EXPECT_EQ(0U, find.results().Count());
}

TEST_F(FindCartTest, AStoppedSearchCanBeginAgain) {
  events.onYield = [&](int) { find.Stop(); };
  FindText("*");
  events.onYield = nullptr;
  FindText("*");
  EXPECT_EQ(10U, find.results().Count());
}

TEST_F(FindCartTest, ASearchEmptiesTheListOfTheOneBefore) {
  FindText("*");
  FindText("cart 5");
  EXPECT_THAT(Found(), ElementsAre(5, 50));
}

}  // namespace
}  // namespace logchecker
