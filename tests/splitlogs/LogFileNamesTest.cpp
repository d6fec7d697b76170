// Which log file belongs to which day.
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitSettings.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class LogFileNamesTest : public StationTest {
 protected:
  LogFileNamesTest() { LoadSplitSettings("none.ini", 0); }
  static std::string NameWith(const std::string& format, int32_t day) {
    SettingsOf(10).DateFormat = format;
    return GetLogFileName(10, day, false);
  }
};

TEST_F(LogFileNamesTest, TheDefaultIsYearMonthDay) {
  EXPECT_EQ("270115.LOG", GetLogFileName(1, kDay, false));
  EXPECT_EQ("270115.REC", GetLogFileName(10, kDay, true));
  EXPECT_EQ("000101.LOG", GetLogFileName(1, 36526, false));
  EXPECT_EQ("280229.LOG", GetLogFileName(1, 46812, false));
  EXPECT_EQ("271231.LOG", GetLogFileName(1, 46752, false));
}

TEST_F(LogFileNamesTest, EachTokenOfADateCountsInUpperCase) {
  Clock& clock = Os().clock;
  const std::pair<std::string, std::string> cases[] = {
      {"D", "15"},
      {"DD", "15"},
      {"DDD", clock.WeekdayName(6, true)},
      {"DDDD", clock.WeekdayName(6, false)},
      {"M", "1"},
      {"MM", "01"},
      {"MMM", clock.MonthName(1, true)},
      {"MMMM", clock.MonthName(1, false)},
      {"Q", "1"},
      {"Y", "15"},
      {"YY", "27"},
      {"YYYY", "2027"},
      {"W", "6"},
      {"WW", "3"},
      {"HHNNSS", "000000"},
      {"DDMMYY", "150127"},
      {"MMDD", "0115"},
      {"YY_MM_DD", "27_01_15"},
      {"YYYY MM DD", "2027 01 15"},
      {"DDDDD", clock.ShortDate(kDay)},
      {"DDDDDD", clock.LongDate(kDay)},
      {"YY#MM+DD!7", "27#01+15!7"},
      {"", ""},
      {"\"LOG\"YYMMDD", "LOG270115"},
      {"\\DYYMMDD", "D270115"},
  };
  for (const auto& [format, date] : cases) {
    EXPECT_EQ(date + ".LOG", NameWith(format, kDay)) << format;
  }
}

TEST_F(LogFileNamesTest, AFormatThatIsRefusedStandsInTheNameAsItIs) {
  for (const char* format : {"YYYYY", "X", "YYMMDDX", "MMMMM", "\"OPEN", "YYY"}) {
    EXPECT_EQ(std::string(format) + ".LOG", NameWith(format, kDay));
  }
}

TEST_F(LogFileNamesTest, EachSplitHasItsOwnNames) {
  SettingsOf(1).PreSuffix = "ONE";
  SettingsOf(10).PreSuffix = "TEN";
  EXPECT_EQ("ONE270115.LOG", GetLogFileName(1, kDay, false));
  EXPECT_EQ("TEN270115.LOG", GetLogFileName(10, kDay, false));
}

}  // namespace
}  // namespace logchecker
