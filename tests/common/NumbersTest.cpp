#include "common/Numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace logchecker {
namespace {

TEST(Val, ReadsTheNumberAtTheStartOfATextAndSkipsBlanks) {
  struct Case {
    const char* text;
    double value;
  };
  const Case cases[] = {
      {"", 0},
      {"   ", 0},
      {"12", 12},
      {"  12", 12},
      {"1 2 3", 123},
      {"00002345", 2345},
      {"    2345", 2345},
      {"12 34", 1234},
      {"12abc", 12},
      {"abc", 0},
      {"-5", -5},
      {"+5", 5},
      {"- 5", -5},
      {"--5", 0},
      {"-", 0},
      {".5", 0.5},
      {"5.", 5},
      {".", 0},
      {"1.5.5", 1.5},
      {"1,5", 1},
      {"1E2", 100},
      {"1e-2", 0.01},
      {"1E", 1},
      {"1E+", 1},
      {"1E 2", 100},
      {"E5", 0},
      {"1e+2", 100},
      {"9E9", 9e9},
      {"\t5", 0},
      {"0x10", 0},
      {"--:--", 0},
      {"06", 6},
      {"1e-999", 0},
      {"999999999999999999", 1e18},
  };
  for (const Case& row : cases) EXPECT_EQ(row.value, Val(row.text)) << "\"" << row.text << "\"";
}

TEST(Val, ANumberThatNothingHoldsIsInfinite) {
  EXPECT_TRUE(std::isinf(Val("1e999")));
  EXPECT_TRUE(std::isinf(Val(std::string(400, '9'))));
}

TEST(RoundHalfEven, HalvesGoToTheEvenNumber) {
  const double cases[][2] = {{0.5, 0},   {1.5, 2},   {2.5, 2},    {3.5, 4},  {-0.5, 0},
                             {-1.5, -2}, {-2.5, -2}, {2.4999, 2}, {2.51, 3}, {0x1p60, 0x1p60}};
  for (const auto& row : cases) EXPECT_EQ(row[1], RoundHalfEven(row[0])) << row[0];
}

TEST(ToInt, WhatTheTypeCannotHoldCountsAsZero) {
  EXPECT_EQ(2147483647, ToInt32(2147483647.0));
  EXPECT_EQ(0, ToInt32(2147483648.0));
  EXPECT_EQ(std::numeric_limits<int32_t>::min(), ToInt32(-2147483648.0));
  EXPECT_EQ(0, ToInt32(-2147483649.0));
  EXPECT_EQ(0, ToInt32(std::numeric_limits<double>::infinity()));
  EXPECT_EQ(0, ToInt32(std::numeric_limits<double>::quiet_NaN()));
  EXPECT_EQ(32767, ToInt16(32767.4));
  EXPECT_EQ(0, ToInt16(32767.5));
  EXPECT_EQ(2, ToInt16(2.5));
}

TEST(ClampToInt16, TheNearestThatFits) {
  EXPECT_EQ(32767, ClampToInt16(65538));
  EXPECT_EQ(-32768, ClampToInt16(-65538));
  EXPECT_EQ(10, ClampToInt16(10));
}

}  // namespace
}  // namespace logchecker
