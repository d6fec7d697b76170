#include "common/Dates.h"

#include "common/DatePicture.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;

constexpr int32_t kNewYear2000 = 36526;
// 15 January 2027, 14:05:09.
constexpr double kMoment = 46402 + (14 * 3600 + 5 * 60 + 9) / 86400.0;

TEST(Dates, DayNumbersCountFrom30December1899) {
  EXPECT_EQ(kNewYear2000, DayOfDate({year{2000}, month{1}, day{1}}));
  EXPECT_EQ(0, DayOfDate({year{1899}, month{12}, day{30}}));
  EXPECT_EQ(46402, DayOfDate({year{2027}, month{1}, day{15}}));
  for (int32_t number = kFirstDay; number <= kLastDay; number += 997) {
    EXPECT_EQ(number, DayOfDate(DateOfDay(number)));
  }
}

TEST(Dates, ADateSplitsIntoItsDayAndWholeSeconds) {
  const DayAndSeconds noon = SplitDateTime(36526.5);
  EXPECT_EQ(kNewYear2000, noon.Days);
  EXPECT_EQ(43200.0F, noon.Seconds);
  for (int second = 0; second < 86400; second += 61) {
    EXPECT_EQ(static_cast<float>(second), SplitDateTime(45000 + second / 86400.0).Seconds);
  }
  EXPECT_EQ(-2, SplitDateTime(-1.5).Days);
}

struct Picture {
  const char* picture;
  const char* text;
};

TEST(FormatDate, EachTokenInEitherCase) {
  const Picture cases[] = {
      {"YYMMDD", "270115"},
      {"yymmdd", "270115"},
      {"YYYYMMDD", "20270115"},
      {"DDMMYY", "150127"},
      {"d/m/yyyy", "15/1/2027"},
      {"yyyy-mm-dd", "2027-01-15"},
      {"y", "15"},
      {"q", "1"},
      {"w", "6"},
      {"ww", "3"},
      {"hh:nn:ss", "14:05:09"},
      {"h:n:s", "14:5:9"},
      {"hhmmss", "140509"},
      {"hh:nn", "14:05"},
      {"\"DAY \"dd", "DAY 15"},
      {"\\d\\ddd", "dd15"},
      {"yy_mm.dd", "27_01.15"},
      {"", ""},
  };
  for (const Picture& row : cases)
    EXPECT_EQ(row.text, FormatDate(kMoment, row.picture)) << row.picture;
}

TEST(FormatDate, AnUnknownLetterOrRunIsRefused) {
  for (const char* picture : {"X", "YYMMDDX", "yyy", "yyyyy", "mmmmm", "ddddddd", "hhh", "nnn",
                              "sss", "www", "qq", "\"open", "dd\\"}) {
    EXPECT_FALSE(FormatDate(kMoment, picture)) << picture;
  }
}

TEST(FormatDate, TheYears100To9999AreTaken) {
  EXPECT_EQ("0100-01-01", FormatDate(kFirstDay, "yyyy-mm-dd"));
  EXPECT_EQ("9999-12-31", FormatDate(kLastDay, "yyyy-mm-dd"));
  EXPECT_FALSE(FormatDate(kFirstDay - 1, "yyyy"));
  EXPECT_FALSE(FormatDate(kLastDay + 1, "yyyy"));
}

class DatesWithAClock : public StationTest {};

TEST_F(DatesWithAClock, TodayComesFromThePlatformsClock) {
  os.now = 36526.99;
  EXPECT_EQ(kNewYear2000, Today());
}

TEST_F(DatesWithAClock, NamesAndSystemDatesComeFromTheUsersLanguage) {
  EXPECT_EQ(Os().clock.MonthName(1, false), FormatDate(kMoment, "mmmm"));
  EXPECT_EQ(Os().clock.MonthName(1, true), FormatDate(kMoment, "MMM"));
  EXPECT_EQ(Os().clock.WeekdayName(6, false), FormatDate(kMoment, "dddd"));
  EXPECT_EQ(Os().clock.WeekdayName(6, true), FormatDate(kMoment, "ddd"));
  EXPECT_EQ(Os().clock.ShortDate(46402), FormatDate(kMoment, "ddddd"));
  EXPECT_EQ(Os().clock.LongDate(46402), FormatDate(kMoment, "dddddd"));
}

}  // namespace
}  // namespace logchecker
