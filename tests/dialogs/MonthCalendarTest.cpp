#include "dialogs/MonthCalendar.h"

#include <gtest/gtest.h>

#include "common/Dates.h"

namespace logchecker {
namespace {

int32_t Day(int year, unsigned month, unsigned day) {
  return DayOfDate(std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day));
}

TEST(MonthCalendar, MonthsHaveTheirDaysAndEveryFourthYearALongFebruary) {
  const int16_t days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int16_t month = 1; month <= 12; ++month) {
    EXPECT_EQ(DaysOfMonth(month, 2027), days[month - 1]) << month;
  }
  EXPECT_EQ(DaysOfMonth(2, 2028), 29);
  EXPECT_EQ(DaysOfMonth(2, 2000), 29);
  EXPECT_EQ(DaysOfMonth(2, 2100), 29) << "the century rule is not applied";
}

TEST(MonthCalendar, AMonthThatBeginsOnASundayHasItsFirstDayInTheFirstLabel) {
  EXPECT_EQ(OffsetOfFirstDay(11, 2026), -1);  // a Sunday
  EXPECT_EQ(OffsetOfFirstDay(2, 2027), 0);    // a Monday
  EXPECT_EQ(OffsetOfFirstDay(8, 2026), 5);    // a Saturday
}

TEST(MonthCalendar, EveryMonthFitsTheLabels) {
  for (int year = kFirstCalendarYear; year <= kLastCalendarYear; ++year) {
    for (int16_t month = 1; month <= 12; ++month) {
      const auto y = static_cast<int16_t>(year);
      ASSERT_LT(OffsetOfFirstDay(month, y) + DaysOfMonth(month, y), kCalendarLabels);
      ASSERT_GE(OffsetOfFirstDay(month, y), -1);
    }
  }
}

TEST(MonthCalendar, AChoiceBecomesItsDayNumber) {
  EXPECT_EQ(DayNumberOfChoice(1, 1, 2000), 36526);
  EXPECT_EQ(DayNumberOfChoice(31, 1, 2027), Day(2027, 1, 31));
  EXPECT_EQ(DayNumberOfChoice(29, 2, 2028), Day(2028, 2, 29));
  EXPECT_EQ(DayNumberOfChoice(31, 12, 2999), Day(2999, 12, 31));
  EXPECT_EQ(DayNumberOfChoice(30, 4, 1980), Day(1980, 4, 30));
}

TEST(MonthCalendar, ADayThatFebruaryLacksIsItsLast) {
  EXPECT_EQ(DayNumberOfChoice(29, 2, 2100), Day(2100, 2, 28));
}

}  // namespace
}  // namespace logchecker
