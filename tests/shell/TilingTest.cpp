#include "shell/Tiling.h"

#include <gtest/gtest.h>

#include "common/ErrorState.h"
#include "shell/SplitArrangement.h"

namespace logchecker {
namespace {

TEST(Tiling, WindowsStandSideBySideAndFillTheArea) {
  const auto places = TileVertically(3, 1000, 600, 200);
  ASSERT_EQ(places.size(), 3U);
  int left = 0;
  for (const TilePlace& place : places) {
    EXPECT_EQ(place.left, left);
    EXPECT_EQ(place.top, 0);
    EXPECT_EQ(place.height, 600);
    left += place.width;
  }
  EXPECT_EQ(left, 1000);
}

TEST(Tiling, NoWindowComesOutNarrowerThanTheLeastWidthWhereMoreRowsPreventIt) {
  const auto places = TileVertically(10, 1000, 600, 200);
  ASSERT_EQ(places.size(), 10U);
  EXPECT_EQ(places[4].top, 0);
  EXPECT_EQ(places[5].top, 300);
  EXPECT_EQ(places[5].left, 0);
  for (const TilePlace& place : places) EXPECT_GE(place.width, 200);
}

TEST(Tiling, AShorterLastRowSharesTheWholeWidth) {
  const auto places = TileVertically(3, 500, 600, 200);
  ASSERT_EQ(places.size(), 3U);
  EXPECT_EQ(places[0].width, 250);
  EXPECT_EQ(places[2].width, 500);
  EXPECT_EQ(places[2].top, 300);
}

TEST(Tiling, AnAreaTooNarrowForOneStillTakesThemAll) {
  EXPECT_EQ(TileVertically(4, 100, 400, 200).size(), 4U);
  EXPECT_TRUE(TileVertically(0, 100, 400, 200).empty());
}

TEST(Tiling, RowsAreNoLowerThanAWindowCanBe) {
  const std::vector<TilePlace> places = TileVertically(3, 300, 100, 200, 134);
  ASSERT_EQ(places.size(), 3U);
  for (size_t i = 0; i < places.size(); ++i) {
    EXPECT_EQ(places[i].top, static_cast<int>(i) * 134);
    EXPECT_EQ(places[i].height, 134);
  }
  EXPECT_EQ(TileVertically(1, 300, 400, 200, 134)[0].height, 400);
}

TEST(SplitArrangement, RowsFillFromTheBottomRowUpwards) {
  SplitArrangement arrangement(10000, 9000, 4000, 3);
  const auto first = arrangement.Next(4000);
  EXPECT_EQ(first.left, 0);
  EXPECT_EQ(first.top, 600);
  EXPECT_EQ(first.height, 8400);
  const auto second = arrangement.Next(4000);
  EXPECT_EQ(second.left, 4000);
  EXPECT_EQ(second.top, 600);
  const auto third = arrangement.Next(4000);
  EXPECT_EQ(third.left, 0);
  EXPECT_EQ(third.top, 0);
  EXPECT_EQ(third.height, 9000);
}

TEST(SplitArrangement, RowsAreCountedFromTheFirstWindowsWidthAlone) {
  // Two of the first window's width would fit; the wider second one takes a row of its own, for
  // which no step was left.
  SplitArrangement arrangement(10000, 9000, 4000, 2);
  EXPECT_EQ(arrangement.Next(4000).top, 0);
  const auto second = arrangement.Next(7000);
  EXPECT_EQ(second.left, 0);
  EXPECT_EQ(second.top, -600);
  EXPECT_EQ(second.height, 9600);
}

TEST(SplitArrangement, AFirstWindowWiderThanTheFrameDividesByZero) {
  try {
    SplitArrangement arrangement(3000, 9000, 3001, 1);
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), kDivisionByZero);
  }
}

}  // namespace
}  // namespace logchecker
