#include "cartbrowser/CartBrowser.h"

#include <filesystem>

#include "cartstore/OpenAudiowall.h"
#include "tests/cartbrowser/CartBrowserFixture.h"

namespace logchecker {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

constexpr auto kUp = ScrollDirection::kUp;
constexpr auto kDown = ScrollDirection::kDown;

TEST_F(CartBrowserTest, ItOpensAtTheTopRightOnTheFirstCart) {
  ExpectAt(0, 1);
  EXPECT_EQ(10, browser.RowCount());
  EXPECT_THAT(face.moves, ElementsAre(Pair(8970, 30), Pair(8970, 30)));
  EXPECT_EQ(3U, CartBrowser::JumpTextMaxLength());
  for (int16_t row = 1; row <= 10; ++row) {
    EXPECT_TRUE(browser.Row(row).Visible);
    EXPECT_EQ(std::to_string(row), browser.Row(row).ButtonCaption);
  }
}

TEST_F(CartBrowserTest, TheBoxTakesAsManyDigitsAsTheLastCartHas) {
  const std::pair<int32_t, size_t> cases[] = {{9, 1}, {10, 2}, {9999, 4}, {12000, 5}};
  for (const auto& [carts, digits] : cases) {
    gNumberOfCarts = carts;
    EXPECT_EQ(digits, CartBrowser::JumpTextMaxLength());
  }
}

TEST_F(CartBrowserTest, ScrollingByOneRowIsAsTabled) {
  const struct {
    float top;
    int16_t row;
    ScrollDirection direction;
    float topAfter;
    int16_t rowAfter;
    int refreshes;
  } cases[] = {
      {20, 5, kUp, 20, 4, 0},     {20, 1, kUp, 19, 1, 1},     {0, 1, kUp, 0, 1, 0},
      {20, 5, kDown, 20, 6, 0},   {20, 10, kDown, 21, 10, 1}, {90, 9, kDown, 90, 10, 0},
      {90, 10, kDown, 90, 10, 0}, {89, 10, kDown, 90, 10, 1}, {95, 5, kDown, 95, 5, 0},
      {95, 4, kDown, 95, 5, 0},
  };
  for (const auto& row : cases) {
    StandAt(row.top, row.row);
    browser.SmallScroll(row.direction);
    ExpectAt(row.topAfter, row.rowAfter);
    EXPECT_EQ(row.refreshes, face.refreshes) << row.top << " " << row.row;
  }
}

TEST_F(CartBrowserTest, DownOnTheLastCartDoesNothingAtAll) {
  StandAt(90, 10);
  face.jumpBoxShown = 0;
  face.focused = 0;
  ui.pointers.clear();
  browser.SmallScroll(kDown);
  EXPECT_EQ(0, face.refreshes + face.jumpBoxShown + face.focused);
  EXPECT_THAT(ui.pointers, IsEmpty());
}

TEST_F(CartBrowserTest, ScrollingByAPageIsAsTabled) {
  const struct {
    float top;
    int16_t row;
    ScrollDirection direction;
    float topAfter;
    int16_t rowAfter;
  } cases[] = {
      {20, 5, kUp, 10, 5},    {10, 5, kUp, 0, 5},     {9, 5, kUp, 0, 1},
      {0, 5, kUp, 0, 1},      {20, 5, kDown, 30, 5},  {80, 5, kDown, 90, 5},
      {81, 5, kDown, 90, 10}, {90, 5, kDown, 90, 10}, {95, 2, kDown, 90, 10},
  };
  for (const auto& row : cases) {
    StandAt(row.top, row.row);
    browser.BigScroll(row.direction);
    ExpectAt(row.topAfter, row.rowAfter);
    EXPECT_EQ(1, face.refreshes) << row.top << " " << row.row;
  }
}

TEST_F(CartBrowserTest, JumpingMovesTheHighlightOnlyWhereTheCartIsOnShow) {
  const struct {
    int32_t cart;
    float topAfter;
    int16_t rowAfter;
    int refreshes;
  } cases[] = {{21, 20, 1, 0}, {30, 20, 10, 0}, {31, 30, 1, 1}, {20, 19, 1, 1},
               {1, 0, 1, 1},   {100, 99, 1, 1}, {0, 20, 5, 0},  {-3, 20, 5, 0}};
  for (const auto& row : cases) {
    StandAt(20, 5);
    browser.JumpToCart(row.cart);
    ExpectAt(row.topAfter, row.rowAfter);
    EXPECT_EQ(row.refreshes, face.refreshes) << row.cart;
  }
}

TEST_F(CartBrowserTest, RowsBehindTheLastCartAreHidden) {
  browser.JumpToCart(97);
  for (int16_t row = 1; row <= 10; ++row) EXPECT_EQ(row <= 4, browser.Row(row).Visible) << row;
  browser.JumpToCart(1);
  EXPECT_TRUE(browser.Row(10).Visible);
}

TEST_F(CartBrowserTest, AStoreSmallerThanAPageStaysAtItsTop) {
  Begin(4);
  browser.LayOutRows(6000, 30 + 10 * kSingleRowHeight, 855);
  EXPECT_EQ(4, browser.RowCount());
  for (int16_t row = 5; row <= browser.RowsMade(); ++row) EXPECT_FALSE(browser.Row(row).Visible);
  browser.BigScroll(kDown);
  ExpectAt(0, 4);
  browser.BigScroll(kDown);
  ExpectAt(0, 4);
  browser.BigScroll(kUp);
  ExpectAt(0, 1);
}

TEST_F(CartBrowserTest, AStoreThatHasShrunkBelowAPageStaysAtItsTop) {
  gNumberOfCarts = 4;
  browser.BigScroll(kDown);
  EXPECT_EQ(0, browser.TopOffset());
  EXPECT_EQ(4, browser.CurrentRow());
}

TEST_F(CartBrowserTest, AHigherFrameHasMoreRowsAndALowerOneHidesThem) {
  browser.LayOutRows(6000, 30 + kSingleRowHeight * 107 / 10, 855);
  EXPECT_EQ(12, browser.RowCount());
  EXPECT_EQ("12", browser.Row(12).ButtonCaption);
  EXPECT_EQ(1, face.refreshes);
  browser.LayOutRows(6000, 30 + 3 * kSingleRowHeight, 855);
  EXPECT_EQ(3, browser.RowCount());
  EXPECT_EQ(12, browser.RowsMade());
  for (int16_t row = 4; row <= 12; ++row) EXPECT_FALSE(browser.Row(row).Visible);
}

TEST_F(CartBrowserTest, ACurrentRowBelowALowerFrameIsNotLost) {
  browser.ButtonDown(9);
  browser.LayOutRows(6000, 30 + 3 * kSingleRowHeight, 855);
  EXPECT_EQ(9, browser.CurrentCart());
  browser.SmallScroll(kDown);
  ExpectAt(1, 3);
}

TEST_F(CartBrowserTest, DoubleRowsAreHalfAsManyWithALineForEachLine) {
  PutCart(2, RecordOfLength(30, "ONE LINE"));
  browser.SetDouble(true);
  EXPECT_EQ(630, browser.RowHeight());
  EXPECT_EQ(5, browser.RowCount());
  EXPECT_EQ("ONE LINE\n\n", browser.Row(2).Caption);
  EXPECT_EQ(630 + 15, browser.PlaceOf(2).Top);
  browser.SetDouble(false);
  EXPECT_EQ(10, browser.RowCount());
  EXPECT_EQ("ONE LINE", browser.Row(2).Caption);
}

TEST_F(CartBrowserTest, ARefreshReadsTheVisibleCartsAndNoOthers) {
  os.script.Clear();
  browser.RefreshRows();
  EXPECT_EQ(10, os.script.CountOf("Files.GetRecord"));
  os.script.Clear();
  browser.SmallScroll(kDown);
  EXPECT_EQ(0, os.script.CountOf("Files.GetRecord"));
}

TEST_F(CartBrowserTest, TheBusyPointerShowsDuringARefreshAndGoesBack) {
  ui.pointers.clear();
  browser.RefreshRows();
  ASSERT_FALSE(ui.pointers.empty());
  EXPECT_EQ(MousePointer::kHourglass, ui.pointers.front());
  EXPECT_EQ(MousePointer::kDefault, ui.pointer);
}

TEST_F(CartBrowserTest, APartThatComesBackIsOnShowAtTheNextRefresh) {
  PutCart(3, RecordOfLength(30, "THREE"));
  CloseAudiowall();
  std::filesystem::rename(Path("part1"), Path("away"));
  browser.RefreshRows();
  EXPECT_EQ("", browser.Row(3).Caption);
  std::filesystem::rename(Path("away"), Path("part1"));
  browser.RefreshRows();
  EXPECT_EQ("THREE", browser.Row(3).Caption);
}

}  // namespace
}  // namespace logchecker
