#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <set>
#include <string>

#include "platform/Platform.h"

namespace logchecker {
namespace {

// 1 January 2000, a Saturday.
constexpr int32_t kDay2000 = 36526;

class ClockTest : public testing::Test {
 protected:
  Clock& clock_ = Os().clock;
};

TEST_F(ClockTest, NowIsTheLocalTime) {
  const std::time_t seconds = std::time(nullptr);
  const std::tm local = *std::localtime(&seconds);
  const std::chrono::sys_days today{std::chrono::year{local.tm_year + 1900} / (local.tm_mon + 1) /
                                    local.tm_mday};
  const std::chrono::sys_days start{std::chrono::year{2000} / 1 / 1};
  const double expected = kDay2000 + static_cast<double>((today - start).count()) +
                          (local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec) / 86400.0;
  constexpr double kFiveSeconds = 5 / 86400.0;
  EXPECT_NEAR(clock_.Now(), expected, kFiveSeconds);
}

TEST_F(ClockTest, ALongDateNamesWeekdayMonthAndYear) {
  const std::string date = clock_.LongDate(kDay2000);
  EXPECT_NE(date.find(clock_.WeekdayName(7, false)), std::string::npos) << date;
  EXPECT_NE(date.find(clock_.MonthName(1, false)), std::string::npos) << date;
  EXPECT_NE(date.find("2000"), std::string::npos) << date;
  const std::string leapDay = clock_.LongDate(kDay2000 + 59);
  EXPECT_NE(leapDay.find("29"), std::string::npos) << leapDay;
  EXPECT_NE(leapDay.find(clock_.WeekdayName(3, false)), std::string::npos) << leapDay;
  EXPECT_NE(leapDay.find(clock_.MonthName(2, false)), std::string::npos) << leapDay;
}

TEST_F(ClockTest, AShortDateIsInDigits) {
  const std::string date = clock_.ShortDate(kDay2000 + 30);
  EXPECT_NE(date.find("31"), std::string::npos) << date;
  EXPECT_NE(date.find("00"), std::string::npos) << date;
  EXPECT_NE(date, clock_.ShortDate(kDay2000 + 31));
}

TEST_F(ClockTest, EveryMonthHasItsName) {
  for (const bool abbreviated : {false, true}) {
    std::set<std::string> names;
    for (int32_t month = 1; month <= 12; ++month) {
      names.insert(clock_.MonthName(month, abbreviated));
      EXPECT_LE(clock_.MonthName(month, true).size(), clock_.MonthName(month, false).size());
    }
    EXPECT_EQ(names.size(), 12U);
    EXPECT_EQ(names.count(""), 0U);
  }
}

TEST_F(ClockTest, EveryWeekdayHasItsName) {
  for (const bool abbreviated : {false, true}) {
    std::set<std::string> names;
    for (int32_t weekday = 1; weekday <= 7; ++weekday) {
      names.insert(clock_.WeekdayName(weekday, abbreviated));
      EXPECT_LE(clock_.WeekdayName(weekday, true).size(),
                clock_.WeekdayName(weekday, false).size());
    }
    EXPECT_EQ(names.size(), 7U);
    EXPECT_EQ(names.count(""), 0U);
  }
}

}  // namespace
}  // namespace logchecker
