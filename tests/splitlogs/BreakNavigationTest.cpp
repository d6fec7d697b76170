#include "common/ErrorState.h"
#include "common/GeneralSettings.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

// Fills a grid with breaks of `adverts` rows each at these times, the last one with its total and
// gap or without.
void Fill(LogGrid& grid, const std::vector<const char*>& times, int adverts, bool ended = true) {
  grid.SetRows(1);
  grid.SetRows(1000);
  int32_t row = 1;
  for (const char* time : times) {
    grid.SetText(row, kTimeColumn, time);
    for (int i = 0; i < adverts; ++i) grid.SetText(row++, kPositionColumn, "1");
    row += 2;
  }
  grid.SetRows(ended ? row : row - 2);
}

class BreakNavigationTest : public StationTest {
 protected:
  BreakNavigationTest() { gGeneralSettings.NumberActiveSplits = 2; }

  SplitLog& split = gSplits(1);
  LogGrid& grid = split.gridLog;

  int32_t ByTime(float seconds, int16_t nextIfMissing) const {
    int32_t row = -7;
    split.FindBreakByTime(seconds, nextIfMissing, row);
    return row;
  }
  int32_t BeginOf(int32_t row) const {
    int32_t firstRow = -7;
    split.FindBeginningofBreak(row, firstRow);
    return firstRow;
  }
  int32_t EndOf(int32_t row) const {
    int32_t lastRow = -7;
    split.FindEndofBreak(row, lastRow);
    return lastRow;
  }
  int32_t NextOf(int32_t row) const {
    int32_t nextRow = -7;
    split.FindNextBreak(row, nextRow);
    return nextRow;
  }
};

TEST_F(BreakNavigationTest, AnEmptyGridHasNothing) {
  EXPECT_EQ(0, ByTime(0, kTrue));
  EXPECT_EQ(0, ByTime(0, kFalse));
  EXPECT_EQ(0, EndOf(0));
  EXPECT_EQ(0, NextOf(0));
}

TEST_F(BreakNavigationTest, ABreakIsFoundByItsVeryTimeOrTheNextAfterIt) {
  Fill(grid, {"06:00", "07:00", "07:00", "--:--"}, 2);  // at rows 1, 5, 9 and 13
  EXPECT_EQ(1, ByTime(21600, kFalse));
  EXPECT_EQ(5, ByTime(25200, kFalse));  // the second of one minute is never found
  EXPECT_EQ(0, ByTime(21630, kFalse));
  EXPECT_EQ(5, ByTime(21630, kTrue));
  EXPECT_EQ(5, ByTime(21600.1F, kTrue));
  EXPECT_EQ(0, ByTime(25201, kTrue));
  EXPECT_EQ(2, ByTime(0, kFalse));  // the first row with an empty cell
  EXPECT_EQ(1, ByTime(0, kTrue));
  EXPECT_EQ(1, ByTime(-1, kTrue));
}

TEST_F(BreakNavigationTest, OnlyMinusOneAsksForTheNext) {
  Fill(grid, {"06:00"}, 2);
  for (const int16_t flag : {int16_t{1}, int16_t{-2}, int16_t{255}, int16_t{0}}) {
    EXPECT_EQ(0, ByTime(60, flag)) << flag;
  }
  EXPECT_EQ(1, ByTime(60, -1));
}

TEST_F(BreakNavigationTest, TheBeginningIsBelowTheGapButForTheFirstBreak) {
  Fill(grid, {"06:00", "07:00", "08:00"}, 3);  // rows 1-3, 6-8, 11-13
  const int32_t cases[][2] = {{6, 6}, {7, 6}, {8, 6}, {9, 6}, {10, 6}, {13, 11}, {14, 11},
                              {1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5},  {0, 0},   {-3, -3}};
  for (const auto& row : cases) EXPECT_EQ(row[1], BeginOf(row[0])) << row[0];
}

TEST_F(BreakNavigationTest, TheEndIsAboveTheTotalOrTheLastRow) {
  Fill(grid, {"06:00", "07:00"}, 3, false);  // rows 1-3 and 6-8, without a last total
  EXPECT_EQ(3, EndOf(1));
  EXPECT_EQ(3, EndOf(2));
  EXPECT_EQ(8, EndOf(6));
  EXPECT_EQ(8, grid.Rows() - 1);
  EXPECT_EQ(3, EndOf(0));
}

TEST_F(BreakNavigationTest, TheNextBreakIsBehindAGap) {
  Fill(grid, {"06:00", "07:00"}, 3);
  EXPECT_EQ(6, NextOf(1));
  EXPECT_EQ(6, NextOf(4));
  EXPECT_EQ(7, NextOf(7));
  EXPECT_EQ(1, NextOf(0));
}

TEST_F(BreakNavigationTest, ASelectionIsTheWholeBreakAtTheTop) {
  Fill(grid, {"06:00", "07:00", "08:00"}, 3);
  split.SelectBreakByTime(25200);
  EXPECT_EQ(6, grid.Row());
  EXPECT_EQ(6, grid.TopRow());
  EXPECT_EQ(8, grid.SelectionEndRow());
  EXPECT_EQ(5, grid.SelectionEndColumn());
  split.SelectBreakByTime(25201);
  EXPECT_EQ(11, grid.Row());
  EXPECT_EQ(13, grid.SelectionEndRow());
}

TEST_F(BreakNavigationTest, BehindTheLastBreakTheHeaderToTheFirstBreakIsSelected) {
  Fill(grid, {"06:00", "07:00"}, 3);
  split.SelectBreakByTime(25200);
  split.SelectBreakByTime(25201);
  EXPECT_EQ(0, grid.Row());
  EXPECT_EQ(6, grid.TopRow());
  EXPECT_EQ(3, grid.SelectionEndRow());
}

TEST_F(BreakNavigationTest, AClickLinesAllActiveSplitsUp) {
  Fill(grid, {"06:00", "07:00", "08:00"}, 3);
  Fill(gSplits(2).gridLog, {"06:30", "07:30"}, 2);
  Fill(gSplits(3).gridLog, {"07:00"}, 2);
  gSplits(3).gridLog.SetRow(2);
  grid.SetRow(9);  // the total of the break at 07:00
  LineUpOnCurrentBreak(split);
  EXPECT_EQ(6, grid.Row());
  EXPECT_EQ(5, gSplits(2).gridLog.Row());  // 07:30 is the next
  EXPECT_EQ(2, gSplits(3).gridLog.Row());  // not active
}

TEST_F(BreakNavigationTest, AClickBelowRowOneOfTheFirstBreakLeadsEverySplitToItsRowOne) {
  Fill(grid, {"06:00", "07:00"}, 3);
  Fill(gSplits(2).gridLog, {"05:30", "06:00"}, 2);
  grid.SetRow(2);
  LineUpOnCurrentBreak(split);
  EXPECT_EQ(1, grid.Row());
  EXPECT_EQ(1, gSplits(2).gridLog.Row());
}

TEST_F(BreakNavigationTest, ActiveSplitsOutsideTheirRangeStopTheProgram) {
  for (const int16_t splits : {int16_t{11}, int16_t{-1}, int16_t{32767}}) {
    gGeneralSettings.NumberActiveSplits = splits;
    try {
      SelectBreakInActiveSplits(0);
      ADD_FAILURE();
    } catch (const RunTimeError& error) {
      EXPECT_EQ(9, error.number());
      EXPECT_NE(std::string::npos, std::string(error.what()).find("NumberActiveSplits="));
    }
  }
}

TEST_F(BreakNavigationTest, TheLabelNamesTheSplitAndAtLeastTheFirst) {
  SettingsOf(3).SplitName = "Third";
  SettingsOf(1).SplitName = "First";
  SplitLog log;
  EXPECT_EQ("Velmar Split", log.Caption());
  log.SetSplitNumberLabel("3");
  EXPECT_EQ(3, log.SplitNumber());
  EXPECT_EQ("Third", log.Caption());
  log.SetSplitNumberLabel("x");
  EXPECT_EQ(1, log.SplitNumber());
  EXPECT_EQ("First", log.Caption());
  SettingsOf(1).SplitName = "Renamed";
  log.UpdateInfo();
  EXPECT_EQ("Renamed", log.Caption());
  int32_t output = 5;
  EXPECT_FALSE(log.CheckForNewLogFile(1, output));
  EXPECT_EQ(5, output);
}

TEST_F(BreakNavigationTest, ASplitsLogIsMadeWhenAddressedAndAnUnloadedOneIsEmpty) {
  EXPECT_FALSE(gSplits.IsLoaded(5));
  Fill(gSplits(5).gridLog, {"06:00"}, 1);
  EXPECT_TRUE(gSplits.IsLoaded(5));
  EXPECT_EQ(5, gSplits(5).SplitNumber());
  SettingsOf(5).LogFileNumber = 3;
  gSplits.Unload(5);
  EXPECT_FALSE(gSplits.IsLoaded(5));
  EXPECT_EQ(1, gSplits(5).gridLog.Rows());
  EXPECT_EQ(3, SettingsOf(5).LogFileNumber);
}

}  // namespace
}  // namespace logchecker
