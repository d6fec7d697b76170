#include "shell/LoadLogs.h"

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

TEST_F(LoadLogsTest, ADayWithoutALogShowsTheOlderOneUnderTheNewDate) {
  WriteLog(1, kDay, kLog);
  LoadLogs(kDay);
  LoadLogs(kDay + 1);
  EXPECT_EQ(kDay + 1, CurrentLogDate);
  EXPECT_EQ("06:00", gSplits(1).gridLog.Text(1, kTimeColumn));
  EXPECT_EQ("Velmar KLT Log Checker : " + Os().clock.LongDate(kDay + 1), CaptionOfDay(kDay + 1));
}

TEST_F(LoadLogsTest, ClosingAllFilesTakesTheLogsWithIt) {
  WriteLog(1, kDay, kLog);
  LoadLogs(kDay);
  CloseAllFiles();
  bool atEnd = false;
  EXPECT_EQ(kBadFileNumber, Os().files.EndOfFile(SettingsOf(1).LogFileNumber, &atEnd));
}

}  // namespace
}  // namespace logchecker
