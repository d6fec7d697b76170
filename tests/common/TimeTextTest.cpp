#include "common/TimeText.h"

#include <gtest/gtest.h>

#include <limits>

namespace logchecker {
namespace {

struct Display {
  double seconds;
  int32_t mask;
  const char* text;
};

TEST(FormatTimeDisplay, GivesTheWorkedValues) {
  const Display cases[] = {
      {75.5, 0, "01:15.50"},  {75.5, 1, "00:01:15.50"}, {75.5, 2, "00:01:16"},
      {75.5, 3, "01:16"},     {75.5, 4, "00:01"},       {75.5, 12, "00:01:15"},
      {75.2, 22, "00:01:16"}, {75, 202, " 1:15"},       {3725, 202, " 1:02:05"},
      {20, 202, "  :20"},     {5, 202, "  : 5"},        {0, 202, "  "},
      {0.25, 201, "  .25"},   {0.25, 200, "  .25"},     {90, 103, " 1:30"},
      {-1, 3, "--:--"},       {86399.6, 2, "24:00:00"},
  };
  for (const Display& row : cases) {
    EXPECT_EQ(row.text, FormatTimeDisplay(row.seconds, row.mask)) << row.seconds << " " << row.mask;
  }
}

TEST(FormatTimeDisplay, TheUnitsDigitSetsTheLayout) {
  const Display cases[] = {
      {3725.25, 0, "02:05.25"}, {3725.25, 1, "01:02:05.25"}, {3725.25, 2, "01:02:05"},
      {3725.25, 3, "02:05"},    {3725.25, 4, "01:02"},       {3725.25, 5, "02:05"},
      {3725.25, 6, "02:05"},    {3725.25, 7, "02:05"},       {3725.25, 8, "02:05"},
      {3725.25, 9, "02:05"},
  };
  for (const Display& row : cases) {
    EXPECT_EQ(row.text, FormatTimeDisplay(row.seconds, row.mask)) << row.mask;
  }
}

TEST(FormatTimeDisplay, TheTensDigitRoundsUnlessHundredthsShow) {
  const Display cases[] = {
      {2.5, 2, "00:00:02"},      {3.5, 2, "00:00:04"},   {2.4, 3, "00:02"},
      {2.2, 22, "00:00:03"},     {2.0, 22, "00:00:02"},  {2.9, 12, "00:00:02"},
      {2.9, 32, "00:00:02"},     {2.9, 92, "00:00:02"},  {2.75, 1, "00:00:02.75"},
      {2.75, 21, "00:00:02.75"}, {2.75, 20, "00:02.75"}, {59.6, 2, "00:01:00"},
      {59.6, 202, " 1:00"},
  };
  for (const Display& row : cases) {
    EXPECT_EQ(row.text, FormatTimeDisplay(row.seconds, row.mask)) << row.seconds << " " << row.mask;
  }
}

TEST(FormatTimeDisplay, TheHundredsDecideThePadding) {
  const Display cases[] = {
      {3725, 100, "  :  .  "},
      {3725, 101, " 1:02:05.00"},
      {3725, 102, " 1:02:05"},
      {5, 102, "  :  : 5"},
      {5, 103, "  : 5"},
      {0, 102, "  :  :  "},
      {0.25, 101, "  :  :  .25"},
      {1.05, 101, "  :  : 1.05"},
      {60, 103, " 1:00"},
      {3600, 103, "00:00"},
      {3600, 202, " 1:00:00"},
      {3600, 204, " 1:00"},
      {60, 204, " 1"},
      {0, 201, "  .  "},
      {60, 200, " 1:00.00"},
      {300, 302, " 5:00"},
  };
  for (const Display& row : cases) {
    EXPECT_EQ(row.text, FormatTimeDisplay(row.seconds, row.mask)) << row.seconds << " " << row.mask;
  }
}

TEST(FormatTimeDisplay, OutsideADayEveryFieldIsDashes) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const Display cases[] = {
      {-1, 202, "--:--:--"},       {86400, 2, "24:00:00"},      {86400.5, 2, "--:--:--"},
      {-0.001, 4, "--:--"},        {99999, 4, "--:--"},         {86401, 0, "--:--.--"},
      {-1, 201, "--:--:--.--"},    {88200, 2, "--:--:--"},      {nan, 4, "--:--"},
      {86400.25, 2, "--:--:--"},   {86400.25, 4, "--:--"},      {86400.25, 201, "--:--:--.--"},
      {86400, 201, "24:00:00.00"}, {86400.25, 202, "--:--:--"},
  };
  for (const Display& row : cases) {
    EXPECT_EQ(row.text, FormatTimeDisplay(row.seconds, row.mask)) << row.seconds << " " << row.mask;
  }
}

TEST(FormatTimeDisplay, HundredthsDoNotCarryAndHoursDoNotFold) {
  EXPECT_EQ("00:59.00", FormatTimeDisplay(59.999, 0));
  EXPECT_EQ("01:01", FormatTimeDisplay(3661, 3));
  EXPECT_EQ("00:00.12", FormatTimeDisplay(0.125, 0));
}

TEST(FormatLengthDisplay, ALengthThatIsNoFiniteNumberIsTwoPairsOfDashes) {
  for (const float seconds :
       {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
        -std::numeric_limits<float>::infinity()}) {
    EXPECT_EQ("--:--", FormatLengthDisplay(seconds, 201));
    EXPECT_EQ("--:--", FormatLengthDisplay(seconds, 202));
  }
  EXPECT_EQ(" 2:00.30", FormatLengthDisplay(120.3F, LengthMask(true)));
  EXPECT_EQ(" 2:00", FormatLengthDisplay(120.3F, LengthMask(false)));
}

TEST(ParseTimeDisplay, ReadsFixedPositionsByTheUnitsDigit) {
  struct Case {
    const char* text;
    int32_t mask;
    double seconds;
  };
  const Case cases[] = {
      {"01:15.50", 0, 75.5},
      {"01:02:05.25", 1, 3725.25},
      {"01:02:05", 2, 3725},
      {"01:30", 3, 90},
      {"  01:30  ", 3, 90},
      {"10:30", 4, 37800},
      {"01:30", 5, 0},
      {"01:30", 203, 90},
      {"ab:cd", 3, 0},
      {":20", 3, 0},
      {"__:45", 3, 45},
      {"1_:4_", 3, 64},
      {"", 2, 0},
      {"12", 3, 720},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(row.seconds, ParseTimeDisplay(row.text, row.mask)) << row.text << " " << row.mask;
  }
}

TEST(ParseTimeDisplay, TheResultGoesThroughSinglePrecision) {
  EXPECT_EQ(static_cast<double>(0.07F), ParseTimeDisplay("00:00.07", 0));
}

}  // namespace
}  // namespace logchecker
