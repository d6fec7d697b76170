// Showing, closing, choosing, keys and the mouse.
#include "cartbrowser/FindCart.h"
#include "tests/cartbrowser/FindCartFixture.h"

namespace logchecker {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int32_t kTab = 9;
constexpr int32_t kEscape = 27;
constexpr int32_t kQ = 81;

class FindCartWindowTest : public FindCartTest {};

TEST_F(FindCartWindowTest, AtFirstEverythingIsAtItsDefault) {
  EXPECT_EQ(2745, find.view().Height);
  EXPECT_EQ(FindTab::kBasic, find.view().Tab);
  EXPECT_FALSE(find.view().ResultsVisible);
  EXPECT_FALSE(find.view().LinesEnabled);
  EXPECT_FALSE(find.view().LengthEnabled);
  EXPECT_EQ("03:00", find.input.Length);
  EXPECT_STREQ("10 Seconds", kLengthTolerances[find.input.ToleranceRow].text);
  EXPECT_EQ("", find.input.SearchText);
  EXPECT_THAT(face.focus, ElementsAre(FindControl::kSearchText));
}

TEST_F(FindCartWindowTest, BecomingActiveCountsOncePerShowing) {
  find.input.Notes = true;
  find.StopSearch = true;
  find.FindNextMode = true;
  gLastFoundCart = 7;
  find.Activate();
  EXPECT_TRUE(find.input.Notes);
  EXPECT_TRUE(find.FindNextMode);
  EXPECT_EQ(7, gLastFoundCart);
  find.CloseBox();
  find.Activate();
  EXPECT_FALSE(find.input.Notes);
  EXPECT_FALSE(find.FindNextMode);
  EXPECT_FALSE(find.StopSearch);
  EXPECT_FALSE(find.Closing);
  EXPECT_TRUE(find.WindowInitialised);
  EXPECT_EQ(0, gLastFoundCart);
}

TEST_F(FindCartWindowTest, BecomingActiveStopsTheAnimationUnlessItIsMissing) {
  find.CloseBox();
  face.playing = true;
  find.Activate();
  EXPECT_FALSE(face.playing);
  find.CloseBox();
  find.AnimationMissing = true;
  face.playing = true;
  find.Activate();
  EXPECT_TRUE(face.playing);
}

TEST_F(FindCartWindowTest, TheNextShowingIsCollapsedAndKeepsLengthAndTolerance) {
  find.input.LimitLines = true;
  find.input.Lines = {false, false, false};
  find.input.TimeSearch = true;
  find.input.Direction = SearchDirection::kBackwards;
  find.input.SearchFromStart = true;
  find.input.Length = "01:23";
  find.input.ToleranceRow = 5;
  find.KeyDown(kTab, true);
  FindText("words");
  find.KeyDown(kEscape, false);
  ShowAt(1);
  EXPECT_EQ(2745, find.view().Height);
  EXPECT_EQ(FindTab::kBasic, find.view().Tab);
  EXPECT_FALSE(find.view().ResultsVisible);
  EXPECT_EQ("words", find.input.SearchText);
  EXPECT_EQ(SearchDirection::kForwards, find.input.Direction);
  EXPECT_FALSE(find.input.SearchFromStart);
  EXPECT_FALSE(find.input.LimitLines);
  EXPECT_EQ((std::array<bool, 3>{true, true, true}), find.input.Lines);
  EXPECT_FALSE(find.view().LinesEnabled);
  EXPECT_EQ("01:23", find.input.Length);
  EXPECT_EQ(5U, find.input.ToleranceRow);
  EXPECT_TRUE(find.input.TimeSearch);
  EXPECT_TRUE(find.view().LengthEnabled);
}

TEST_F(FindCartWindowTest, TheHistorySurvivesAndItsFirstEntryIsSelected) {
  for (const char* text : {"one", "two", "", "one", "three"}) FindText(text);
  EXPECT_THAT(find.history().Entries(), ElementsAre("three", "one", "two"));
  EXPECT_EQ("", gLastSearches[0]);
  find.CloseBox();
  EXPECT_EQ("three", gLastSearches[0]);
  find.Load();
  ShowAt(1);
  EXPECT_THAT(find.history().Entries(), ElementsAre("three", "one", "two"));
  EXPECT_EQ("three", find.input.SearchText);
}

TEST_F(FindCartWindowTest, AWindowThatIsNotVisibleYetKeepsItsControls) {
  find.CloseBox();
  find.input.Notes = true;
  face.visible = false;
  face.focus.clear();
  find.Activate();
  EXPECT_TRUE(find.input.Notes);
  EXPECT_THAT(face.focus, IsEmpty());
}

TEST_F(FindCartWindowTest, LinesAreTickedAgainWhenTheyAreNotLimited) {
  find.input.LimitLines = true;
  find.LimitLinesClicked();
  EXPECT_TRUE(find.view().LinesEnabled);
  find.input.Lines = {false, true, false};
  find.LimitLinesClicked();
  EXPECT_EQ((std::array<bool, 3>{false, true, false}), find.input.Lines);
  find.input.LimitLines = false;
  find.LimitLinesClicked();
  EXPECT_FALSE(find.view().LinesEnabled);
  EXPECT_EQ((std::array<bool, 3>{true, true, true}), find.input.Lines);
}

TEST_F(FindCartWindowTest, TheLengthIsEnabledAsItsBoxIsTicked) {
  find.input.TimeSearch = true;
  find.TimeSearchClicked();
  EXPECT_TRUE(find.view().LengthEnabled);
  find.input.TimeSearch = false;
  find.TimeSearchClicked();
  EXPECT_FALSE(find.view().LengthEnabled);
}

TEST_F(FindCartWindowTest, ChoosingJumpsToTheCartAndCloses) {
  FindText("*");
  find.SelectRow(6);
  find.Choose();
  EXPECT_EQ(150, gLastFoundCart);
  ExpectClosed({150});
  EXPECT_TRUE(find.StopSearch);
  EXPECT_FALSE(face.visible);
  EXPECT_EQ("*", gLastSearches[0]);
}

TEST_F(FindCartWindowTest, TheRowThatSaysNoneCannotBeChosen) {
  FindText("nothing like it");
  find.Choose();
  EXPECT_TRUE(find.StopSearch);
  EXPECT_TRUE(face.visible);
  EXPECT_TRUE(find.WindowInitialised);
  EXPECT_EQ(0, gLastFoundCart);
  EXPECT_THAT(browser.jumps, IsEmpty());
}

TEST_F(FindCartWindowTest, WithoutASelectedRowNothingIsChosen) {
  FindText("*");
  find.SelectRow(std::nullopt);
  find.Choose();
  EXPECT_FALSE(find.StopSearch);
  EXPECT_TRUE(face.visible);
}

TEST_F(FindCartWindowTest, ABrowserThatFailsOrIsNotThereIsIgnored) {
  browser.fails = true;
  FindText("*");
  find.Choose();
  ExpectClosed({1});
  EXPECT_FALSE(face.visible);
  EXPECT_EQ(0, gErrorState.Number);
  ShowAt(1);
  find.CallingBrowser = nullptr;
  EXPECT_TRUE(find.KeyDown(kEscape, false));
  EXPECT_FALSE(face.visible);
}

TEST_F(FindCartWindowTest, ClosingDuringAWalkEndsItAndTouchesNoControl) {
  const std::function<void()> closings[] = {[this] {
                                              find.CloseBox();
                                              face.visible = false;
                                            },
                                            [this] {
                                              find.SelectRow(0);
                                              find.Choose();
                                            }};
  for (const auto& close : closings) {
    ShowAt(1);
    browser.jumps.clear();
    events.yields = 0;
    size_t touches = 0;
    events.onYield = [&](int yields) {
      if (yields == 99) close();
      if (yields == 99) touches = face.Touches();
    };
    FindText("*");
    EXPECT_EQ(99, events.yields);
    EXPECT_EQ(touches, face.Touches());
    EXPECT_EQ(1U, browser.jumps.size());
    // The next showing can search again.
    ShowAt(1);
    events.onYield = nullptr;
    EXPECT_TRUE(find.view().FindEnabled);
    FindText("*");
    EXPECT_EQ(10U, find.results().Count());
  }
}

TEST_F(FindCartWindowTest, AWindowThatIsHiddenByOthersDuringAWalkIsNotTouchedAtItsEnd) {
  size_t touches = 0;
  events.onYield = [&](int yields) {
    if (yields == 150) face.visible = false;
    touches = face.Touches();
  };
  FindText("nothing like it");
  EXPECT_EQ(300, events.yields);
  EXPECT_EQ(touches, face.Touches());
  EXPECT_EQ(0U, find.results().Count());
}

TEST_F(FindCartWindowTest, AWalkEndsWhenItsWindowWasClosedAndShownAgain) {
  events.onYield = [&](int yields) {
    if (yields != 60) return;
    find.CloseBox();
    ShowAt(250);
    find.input.SearchText = "299";
    events.onYield = nullptr;
    find.Find();
  };
  FindText("*");
  EXPECT_EQ(60 + 51, events.yields);
  EXPECT_THAT(Found(), ElementsAre(299));
  EXPECT_TRUE(find.view().FindEnabled);
}

TEST_F(FindCartWindowTest, EscapePressesStopDuringAWalkAndClosesOtherwise) {
  events.onYield = [&](int yields) {
    if (yields == 10) {
      EXPECT_TRUE(find.KeyDown(kEscape, false));
    }
  };
  FindText("*");
  EXPECT_EQ(10, events.yields);
  EXPECT_TRUE(face.visible);
  EXPECT_THAT(browser.jumps, IsEmpty());
  EXPECT_TRUE(find.KeyDown(kEscape, false));
  ExpectClosed({0});
  EXPECT_FALSE(face.visible);
}

TEST_F(FindCartWindowTest, ControlTabFlipsTheTabs) {
  EXPECT_TRUE(find.KeyDown(kTab, true));
  EXPECT_EQ(FindTab::kAdvanced, find.view().Tab);
  EXPECT_TRUE(find.KeyDown(kTab, true));
  EXPECT_EQ(FindTab::kBasic, find.view().Tab);
  EXPECT_FALSE(find.KeyDown(kTab, false));
  EXPECT_EQ(FindTab::kBasic, find.view().Tab);
}

TEST_F(FindCartWindowTest, ControlQIsConsumedAndOtherKeysAreNot) {
  EXPECT_TRUE(find.KeyDown(kQ, true));
  EXPECT_FALSE(find.KeyDown(kQ, false));
  EXPECT_FALSE(find.KeyDown(13, false));
  EXPECT_TRUE(find.WindowInitialised);
}

TEST_F(FindCartWindowTest, FindIsTheDefaultButtonUnlessTheListHasTheFocus) {
  find.ListFocusChanged(true);
  EXPECT_FALSE(find.view().FindIsDefault);
  find.ListFocusChanged(false);
  EXPECT_TRUE(find.view().FindIsDefault);
}

TEST_F(FindCartWindowTest, ADragBeginsThirtyTwipsAway) {
  FindText("*");
  find.SelectRow(2);
  find.MouseDown(true, 100, 200);
  EXPECT_EQ(std::nullopt, find.MouseMove(true, 130, 230));
  EXPECT_EQ(std::nullopt, find.MouseMove(true, 70, 170));
  EXPECT_EQ(std::nullopt, find.MouseMove(false, 500, 200));
  EXPECT_EQ("50", find.MouseMove(true, 131, 200));
  EXPECT_EQ(std::nullopt, find.MouseMove(true, 500, 500));
}

TEST_F(FindCartWindowTest, WhatCannotBeDraggedIsNot) {
  FindText("*");
  find.MouseDown(false, 100, 200);
  EXPECT_EQ(std::nullopt, find.MouseMove(true, 500, 200));
  find.MouseDown(true, 100, 200);
  find.MouseUp();
  EXPECT_EQ(std::nullopt, find.MouseMove(true, 500, 200));
  find.SelectRow(std::nullopt);
  find.MouseDown(true, 100, 200);
  EXPECT_EQ(std::nullopt, find.MouseMove(true, 500, 200));
  FindText("nothing like it");
  find.MouseDown(true, 100, 200);
  EXPECT_EQ(std::nullopt, find.MouseMove(true, 500, 200));
}

class FindNextModeTest : public FindCartTest {
 protected:
  void SetUp() override {
    FindCartTest::SetUp();
    find.FindNextMode = true;
  }
};

TEST_F(FindNextModeTest, ASearchWithoutResultSaysSoAndCloses) {
  FindText("nothing like it");
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ("There were no further items found on the Audiowall that matched your search",
            ui.messages[0].text);
  EXPECT_EQ(MessageIcon::kInformation, ui.messages[0].icon);
  EXPECT_EQ(0U, find.results().Count());
  ExpectClosed({0});
  EXPECT_TRUE(find.StopSearch);
  EXPECT_FALSE(face.visible);
  EXPECT_EQ("nothing like it", gLastSearches[0]);
}

TEST_F(FindNextModeTest, ASearchWithResultsStays) {
  FindText("*");
  EXPECT_TRUE(face.visible);
  EXPECT_EQ(10U, find.results().Count());
  EXPECT_EQ(0U, find.results().SelectedRow());
}

TEST_F(FindNextModeTest, StopClosesToo) {
  events.onYield = [&](int yields) {
    if (yields == 5) find.Stop();
  };
  FindText("*");
  EXPECT_EQ(5, events.yields);
  ExpectClosed({0});
  EXPECT_FALSE(face.visible);
  EXPECT_TRUE(ui.messages.empty());
}

}  // namespace
}  // namespace logchecker
