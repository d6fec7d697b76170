#include "shell/LoadLogs.h"

#include "common/ErrorState.h"
#include "common/PathText.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46402;
constexpr char kLog[] = "06:00:00|NTH  00000001 A\n06:00:30|NTH  00000001 B\n\n";

class LoadLogsTest : public StationTest {
 protected:
  LoadLogsTest() { OpenStore(10); }
};

TEST_F(LoadLogsTest, AllTenSplitsGetTheDayAndStandOnTheirFirstBreak) {
  WriteLog(1, kDay, kLog);
  WriteLog(10, kDay, kLog);
  LoadLogs(kDay);
  EXPECT_EQ(kDay, CurrentLogDate);
  for (int16_t n = 1; n <= 10; ++n) {
    EXPECT_EQ(kDay, SettingsOf(n).LogDate);
    EXPECT_TRUE(gSplits.IsLoaded(n));
  }
  for (const int16_t n : {int16_t{1}, int16_t{10}}) {
    const LogGrid& grid = gSplits(n).gridLog;
    EXPECT_EQ(5, grid.Rows());
    EXPECT_EQ(1, grid.Row());
    EXPECT_EQ(1, grid.TopRow());
    EXPECT_EQ(2, grid.SelectionEndRow());
  }
  EXPECT_EQ(1, gSplits(2).gridLog.Rows());
}

TEST_F(LoadLogsTest, AListFileThatWasReplacedSinceTheLastLoadIsReadAnew) {
  PutCart(1, 30.0F);
  WriteLog(1, kDay, kLog);
  LoadLogs(kDay);
  EXPECT_EQ("  :30", gSplits(1).gridLog.Text(1, kLengthColumn));
  ReplaceListFile(1, 40.0F);
  LoadLogs(kDay);
  EXPECT_EQ("  :40", gSplits(1).gridLog.Text(1, kLengthColumn));
}

TEST_F(LoadLogsTest, ADayWithoutALogShowsTheOlderOneUnderTheNewDate) {
  WriteLog(1, kDay, kLog);
  LoadLogs(kDay);
  LoadLogs(kDay + 1);
  EXPECT_EQ(kDay + 1, CurrentLogDate);
  EXPECT_EQ("06:00", gSplits(1).gridLog.Text(1, kTimeColumn));
  EXPECT_EQ("Velmar KLT Log Checker : " + Os().clock.LongDate(kDay + 1), CaptionOfDay(kDay + 1));
}

TEST_F(LoadLogsTest, ALogThatCannotBeReadStopsTheDayAndNamesItsSplit) {
  WriteLog(1, kDay, kLog);
  WriteLog(3, kDay, kLog);
  SettingsOf(3).SplitName = "West";
  os.script.FailNamed("Files.OpenForInput", 2, kPermissionDenied);
  try {
    LoadLogs(kDay);
    ADD_FAILURE();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(kBadFileNumber, error.number());
    EXPECT_NE(std::string::npos, error.concerning().find("split 3 \"West\", " +
                                                         ShownPath(SettingsOf(3).CurrentLogPath)));
  }
  EXPECT_EQ(kDay, CurrentLogDate);
  EXPECT_EQ(5, gSplits(1).gridLog.Rows());
  EXPECT_EQ(1, gSplits(3).gridLog.Rows());
  EXPECT_FALSE(gSplits.IsLoaded(4));
}

TEST_F(LoadLogsTest, ADaysLogTakesThePlaceOfTheDayBefore) {
  WriteLog(1, kDay, kLog);
  WriteLog(1, kDay + 1, "07:00:00|NTH  00000001 C\n\n");
  LoadLogs(kDay);
  LoadLogs(kDay + 1);
  const LogGrid& grid = gSplits(1).gridLog;
  EXPECT_EQ(4, grid.Rows());
  EXPECT_EQ("07:00", grid.Text(1, kTimeColumn));
  EXPECT_EQ(1, grid.SelectionEndRow());
}

TEST_F(LoadLogsTest, ABreakAtMidnightIsTheFirstOfItsDay) {
  WriteLog(1, kDay, "00:00:00|NTH  00000001 A\n\n06:00:00|NTH  00000001 B\n\n");
  LoadLogs(kDay);
  EXPECT_EQ("00:00", gSplits(1).gridLog.Text(1, kTimeColumn));
  EXPECT_EQ(1, gSplits(1).gridLog.Row());
}

TEST_F(LoadLogsTest, ALoadMovesEverySelectionBackToTheFirstBreak) {
  WriteLog(1, kDay, "06:00:00|NTH  00000001 A\n\n07:00:00|NTH  00000001 B\n\n");
  LoadLogs(kDay);
  for (const int32_t day : {kDay, kDay + 1}) {
    gSplits(1).SelectBreakByTime(7 * 3600);
    ASSERT_LT(1, gSplits(1).gridLog.Row());
    LoadLogs(day);
    EXPECT_EQ(1, gSplits(1).gridLog.Row());
    EXPECT_EQ(1, gSplits(1).gridLog.TopRow());
  }
}

TEST_F(LoadLogsTest, TheCaptionNamesTheDayAskedForInTheLongForm) {
  for (const int32_t day : {1, 36526, kDay, 2958465}) {
    EXPECT_EQ("Velmar KLT Log Checker : " + Os().clock.LongDate(day), CaptionOfDay(day)) << day;
  }
  EXPECT_NE(CaptionOfDay(kDay), CaptionOfDay(kDay + 1));
}

TEST_F(LoadLogsTest, ClosingAllFilesTakesTheLogsAndTheStoreWithIt) {
  for (int16_t n = 1; n <= 10; ++n) WriteLog(n, kDay, kLog);
  LoadLogs(kDay);
  CloseAllFiles();
  bool atEnd = false;
  for (int16_t n = 1; n <= 10; ++n) {
    EXPECT_NE(0, SettingsOf(n).LogFileNumber);
    EXPECT_EQ(kBadFileNumber, Os().files.EndOfFile(SettingsOf(n).LogFileNumber, &atEnd)) << n;
  }
  int16_t number = 0;
  EXPECT_EQ(kNoError, Os().files.FreeFile(&number));
  EXPECT_EQ(1, number);
  Os().files.Abandon(number);
}

}  // namespace
}  // namespace logchecker
