// What a split shows, in words.
#include "splitlogs/LogWords.h"

#include "common/DatePicture.h"
#include "common/PathText.h"
#include "platform/Platform.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr char kLog[] =
    "06:00:00|NTH  00000001 A\n06:00:30|NTH  00000001 B\n\n07:30:00|NTH  00000001 C\n\n";

class LogWordsTest : public StationTest {
 protected:
  LogWordsTest() {
    OpenStore(10);
    gGeneralSettings.NumberActiveSplits = 3;
    for (int16_t n = 1; n <= 3; ++n) {
      SettingsOf(n).SplitName = "Split <b>" + std::to_string(n);
      gSplits(n).UpdateInfo();
      WriteLog(n, kDay, kLog);
    }
    Load(kDay);
  }
  static void Load(int32_t day) {
    for (int16_t n = 1; n <= 3; ++n) {
      SettingsOf(n).LogDate = day;
      gSplits(n).LoadLogFile();
    }
  }
  static std::string Long(int32_t day) { return Os().clock.LongDate(day); }
};

TEST_F(LogWordsTest, TheLogIsToldByNamePathDayBreaksAndAdverts) {
  EXPECT_EQ("Split <b>1\n" + ShownPath(GetLogSourcePath(1, kDay, false)) + "\n" + Long(kDay) +
                "\n2 breaks, 3 adverts",
            LogInWords(gSplits(1)));
  WriteLog(1, kDay, "06:00:00|NTH  00000001 A\n");
  gSplits(1).LoadLogFile();
  EXPECT_NE(std::string::npos, LogInWords(gSplits(1)).find("1 break, 1 advert"));
  EXPECT_EQ("", OtherDaysInWords(kDay));
}

TEST_F(LogWordsTest, ALogOfAnotherDayIsToldByItsOwn) {
  WriteLog(2, kDay + 1, kLog);
  Load(kDay + 1);
  EXPECT_EQ("Split <b>1\n" + ShownPath(GetLogSourcePath(1, kDay, false)) + "\n" + Long(kDay) +
                "\nAnother day's log, since there is none of " + Long(kDay + 1) +
                "\n2 breaks, 3 adverts",
            LogInWords(gSplits(1)));
  EXPECT_EQ("Split <b>1, Split <b>3 show " + Long(kDay), OtherDaysInWords(kDay + 1));
  Load(kDay + 2);
  EXPECT_EQ("Split <b>1, Split <b>3 show " + Long(kDay) + "\nSplit <b>2 shows " + Long(kDay + 1),
            OtherDaysInWords(kDay + 2));
  gGeneralSettings.NumberActiveSplits = 1;
  EXPECT_EQ("Split <b>1 shows " + Long(kDay), OtherDaysInWords(kDay + 2)) << "no other is seen";
  gGeneralSettings.NumberActiveSplits = 3;
  Load(kDay);
  EXPECT_EQ("", OtherDaysInWords(kDay)) << "each log of the day is found again";
}

TEST_F(LogWordsTest, ASplitWithoutALogSaysWhichWasLookedFor) {
  gSplits.Unload(1);
  CloseLogFiles();
  SettingsOf(1).LogDate = kDay + 5;
  gSplits(1).LoadLogFile();
  EXPECT_FALSE(gSplits(1).Shown());
  EXPECT_EQ("Split <b>1\nNo log of " + Long(kDay + 5) + "\n" +
                ShownPath(GetLogSourcePath(1, kDay + 5, false)),
            LogInWords(gSplits(1)));
}

TEST_F(LogWordsTest, AGridThatWasTakenAwayShowsNoOtherDay) {
  Load(kDay + 1);
  ASSERT_NE("", OtherDaysInWords(kDay + 1));
  for (int16_t n = 1; n <= 3; ++n) gSplits.Unload(n);
  EXPECT_EQ("", OtherDaysInWords(kDay + 1)) << "its log is open and nobody sees it";
}

TEST_F(LogWordsTest, ABreakThatStandsInForAMissingOneIsTold) {
  SplitLog& split = gSplits(1);
  LogGrid& grid = split.gridLog;
  const struct {
    float seconds;
    const char* words;
  } cases[] = {
      {0, ""},  // the first break, whenever that is
      {6 * 3600, ""},
      {7 * 3600, "No break at 07:00: this is the next, at 07:30"},
      {7 * 3600 + 1800, ""},
      {8 * 3600, "No break at 08:00, nor a later one"},
  };
  for (const auto& row : cases) {
    split.SelectBreakByTime(row.seconds);
    EXPECT_EQ(row.words, MissInWords(grid)) << row.seconds;
  }
}

TEST_F(LogWordsTest, AnyOtherRowEndsTheStandIn) {
  SplitLog& split = gSplits(1);
  split.SelectBreakByTime(7 * 3600);
  ASSERT_TRUE(split.gridLog.MissedTime());
  split.gridLog.SetRow(2);
  EXPECT_FALSE(split.gridLog.MissedTime());
  split.SelectBreakByTime(7 * 3600);
  split.LoadLogFile();
  EXPECT_FALSE(split.gridLog.MissedTime());
}

}  // namespace
}  // namespace logchecker
