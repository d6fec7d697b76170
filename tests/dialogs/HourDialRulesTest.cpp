#include "dialogs/HourDialRules.h"

#include <gtest/gtest.h>

#include "common/ErrorState.h"

namespace logchecker {
namespace {

constexpr double kSize = 200;  // the dial's width and height; its radius is 98

struct Press {
  double right;  // of the centre
  double up;
  std::optional<int32_t> hour;
};

TEST(HourDialRules, APressGivesTheHourOfItsSectorAndTheOuterPartAddsTwelve) {
  const Press presses[] = {
      {1, 40, 0},    {20, 30, 1},    {40, 10, 2},   {40, 0, 3},    {40, -10, 3}, {20, -30, 4},
      {10, -40, 5},  {-10, -40, 6},  {-30, -20, 7}, {-40, -10, 8}, {-40, 10, 9}, {-30, 30, 10},
      {-10, 40, 11}, {1, 60, 12},    {60, 40, 13},  {80, 20, 14},  {60, 0, 15},  {60, -20, 15},
      {30, -70, 17}, {-10, -70, 18}, {-60, 10, 21}, {-10, 70, 23},
  };
  for (const Press& press : presses) {
    EXPECT_EQ(HourOfPress(kSize / 2 + press.right, kSize / 2 - press.up, kSize, kSize), press.hour)
        << press.right << ", " << press.up;
  }
}

TEST(HourDialRules, OnTheLineLeftOfTheCentreTheHourIsMinusThreeOrNine) {
  EXPECT_EQ(HourOfPress(60, 100, kSize, kSize), -3);
  EXPECT_EQ(HourOfPress(40, 100, kSize, kSize), 9);
}

TEST(HourDialRules, TheInnerHalfReachesToHalfTheRadius) {
  EXPECT_EQ(HourOfPress(100 + 49, 100, kSize, kSize), 3);
  EXPECT_EQ(HourOfPress(100 + 50, 100, kSize, kSize), 15);
}

TEST(HourDialRules, APressOutsideTheDiscMeansNothing) {
  EXPECT_EQ(HourOfPress(100 + 98, 100, kSize, kSize), 15);
  EXPECT_EQ(HourOfPress(100 + 99, 100, kSize, kSize), std::nullopt);
  EXPECT_EQ(HourOfPress(1, 1, kSize, kSize), std::nullopt);
}

TEST(HourDialRules, TheVerticalLineThroughTheCentreDividesByZeroEvenOutsideTheDisc) {
  for (const double y : {0.0, 60.0, 100.0, 160.0}) {
    try {
      HourOfPress(100, y, kSize, kSize);
      ADD_FAILURE() << "no error at " << y;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), kDivisionByZero);
    }
  }
}

TEST(HourDialRules, PositionsAreRoundedHalvesToEven) {
  // Half a unit beside the centre rounds to it, one and a half does not.
  EXPECT_THROW(HourOfPress(100.5, 60, kSize, kSize), RunTimeError);
  EXPECT_EQ(HourOfPress(101.5, 60, kSize, kSize), 0);
}

TEST(HourDialRules, TheWedgeStandsInTheHoursSector) {
  struct Row {
    int32_t hour;
    double sector;
    double radiusShare;
  };
  const Row rows[] = {{0, 2, 0.5},  {1, 1, 0.5},  {3, 11, 0.5}, {11, 3, 0.5},
                      {12, 2, 1.0}, {13, 1, 1.0}, {23, 3, 1.0}, {24, 2, 1.0}};
  for (const Row& row : rows) {
    const auto wedge = WedgeOfHour(row.hour);
    ASSERT_TRUE(wedge) << row.hour;
    EXPECT_DOUBLE_EQ(wedge->from, row.sector / 12) << row.hour;
    EXPECT_DOUBLE_EQ(wedge->to, (row.sector + 1) / 12) << row.hour;
    EXPECT_EQ(wedge->radiusShare, row.radiusShare) << row.hour;
  }
  EXPECT_EQ(WedgeOfHour(-1), std::nullopt);
}

TEST(HourDialRules, ASectorThatWouldBeginAtZeroBeginsJustBehindIt) {
  EXPECT_DOUBLE_EQ(WedgeOfHour(2)->from, 0.00001 / 12);
  EXPECT_DOUBLE_EQ(WedgeOfHour(14)->to, 1.00001 / 12);
}

TEST(HourDialRules, TheRadiusIsNearlyHalfTheWidth) { EXPECT_DOUBLE_EQ(DialRadius(200), 98); }

}  // namespace
}  // namespace logchecker
