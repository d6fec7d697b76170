#include "checking/BreakCheck.h"

#include <gmock/gmock.h>

#include <limits>

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/ErrorState.h"
#include "common/GeneralSettings.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

struct PlannedBreak {
  const char* time;
  std::vector<int32_t> carts;
};

using Day = std::vector<PlannedBreak>;

class BreakCheckTest : public StationTest {
 protected:
  BreakCheckTest() {
    OpenStore(40);
    PutCart(1, 120.0F);
    PutCart(2, 120.5F);
    PutCart(3, 120.51F);
    PutCart(4, 120.4F);
    PutCart(5, 120.8F);
    PutCart(6, 0.3F);
    gGeneralSettings.NumberActiveSplits = 2;
    SettingsOf(1).SplitName = "North";
    SettingsOf(2).SplitName = "South";
    SettingsOf(3).SplitName = "West";
  }
  static void Fill(int16_t split, const Day& day) {
    LogGrid& grid = gSplits(split).gridLog;
    grid.SetRows(1);
    grid.SetRows(2000);
    int32_t row = 1;
    for (const PlannedBreak& planned : day) {
      grid.SetText(row, kTimeColumn, planned.time);
      for (const int32_t cart : planned.carts) {
        grid.SetText(row, kPositionColumn, "1");
        grid.SetText(row++, kCartColumn, std::to_string(cart));
      }
      row += 2;
    }
    grid.SetRows(row);
  }
  // The rows of the results, cells with "|" between them.
  std::vector<std::string> Check() {
    check.CheckBreaks();
    std::vector<std::string> rows;
    for (const ListItem& item : check.lvwResults.ListItems) {
      std::string row = item.key + "|" + item.text;
      for (const ListSubItem& subItem : item.ListSubItems) row += "|" + subItem.text;
      rows.push_back(row);
    }
    EXPECT_EQ(rows.size(), check.Mismatches.size());
    EXPECT_EQ(!rows.empty(), check.cmdPrintEnabled);
    EXPECT_EQ(!rows.empty(), check.cmdSaveEnabled);
    EXPECT_EQ(rows.empty(), check.picNoResultsVisible);
    EXPECT_EQ(0, check.ProgressBar1.Value);
    EXPECT_EQ(MousePointer::kDefault, ui.pointer);
    EXPECT_EQ(0, ui.yields);
    return rows;
  }

  BreakCheck check;
};

using Rows = std::vector<std::string>;

TEST_F(BreakCheckTest, AListFileThatWasReplacedSinceTheLoadIsReadAnew) {
  Fill(1, {{"06:00", {1, 1}}});
  Fill(2, {{"06:00", {1}}});
  check.BuildColumns();
  EXPECT_THAT(Check(), ::testing::ElementsAre(::testing::EndsWith("| 4:00.00| 2:00.00")));
  ReplaceListFile(1, 60.0F);
  EXPECT_THAT(Check(), ::testing::ElementsAre(::testing::EndsWith("| 2:00.00| 1:00.00")));
}

TEST_F(BreakCheckTest, WithoutALoadedLogThereIsNoWalkAndNoBusyPointer) {
  EXPECT_EQ(Rows{}, Check());
  EXPECT_EQ((std::vector<MousePointer>{MousePointer::kDefault}), ui.pointers);
}

TEST_F(BreakCheckTest, OneActiveSplitMatchesItself) {
  gGeneralSettings.NumberActiveSplits = 1;
  Fill(1, {{"06:00", {1}}, {"07:00", {2}}});
  EXPECT_EQ(Rows{}, Check());
  EXPECT_EQ(MousePointer::kHourglass, ui.pointers.front());
}

TEST_F(BreakCheckTest, ABreakAMinuteLaterIsTwoRows) {
  Fill(1, {{"10:30", {1}}});
  Fill(2, {{"10:31", {2}}});
  EXPECT_EQ((Rows{"t37800|10:30| 2:00.00|Not Found", "t37860|10:31|Not Found| 2:00.50"}), Check());
  EXPECT_EQ(37860.0F, TimeOfResultKey(check.lvwResults.ListItems[1].key));
  EXPECT_TRUE(check.Mismatches[0].Lengths[0].found);
  EXPECT_EQ(120.0F, check.Mismatches[0].Lengths[0].seconds);
  EXPECT_FALSE(check.Mismatches[0].Lengths[1].found);
}

TEST_F(BreakCheckTest, ALengthOnTheBoundPassesAndOneBeyondDoesNot) {
  Fill(1, {{"10:30", {1}}, {"11:30", {1}}});
  Fill(2, {{"10:30", {2}}, {"11:30", {3}}});
  EXPECT_EQ((Rows{"t41400|11:30| 2:00.00| 2:00.51"}), Check());
}

TEST_F(BreakCheckTest, AllSplitsAreMeasuredAgainstTheShortest) {
  gGeneralSettings.NumberActiveSplits = 3;
  Fill(1, {{"10:30", {4}}});
  Fill(2, {{"10:30", {5}}});
  Fill(3, {{"10:30", {1}}});
  EXPECT_EQ((Rows{"t37800|10:30| 2:00.40| 2:00.80| 2:00.00"}), Check());
}

TEST_F(BreakCheckTest, HundredthsShowAsTheSettingSays) {
  gGeneralSettings.DisplayCheckHH = false;
  Fill(1, {{"10:30", {1}}});
  Fill(2, {{"10:30", {5}}});
  EXPECT_EQ((Rows{"t37800|10:30| 2:00| 2:01"}), Check());
}

TEST_F(BreakCheckTest, ANegativeToleranceReportsEveryBreak) {
  gGeneralSettings.BreakDifferenceMS = -1;
  Fill(1, {{"10:30", {1}}, {"11:30", {1}}});
  Fill(2, {{"10:30", {1}}, {"11:30", {1}}});
  EXPECT_EQ(2U, Check().size());
}

TEST_F(BreakCheckTest, ACartWithoutAudioAddsNothingAndIsNotReportedItself) {
  Fill(1, {{"10:30", {1, 9, 0}}});
  Fill(2, {{"10:30", {1}}});
  EXPECT_EQ(Rows{}, Check());
  Fill(1, {{"10:30", {9}}});
  EXPECT_EQ((Rows{"t37800|10:30|  .  | 2:00.00"}), Check());
}

TEST_F(BreakCheckTest, OnlyTheFirstOfTwoBreaksInOneMinuteIsMeasured) {
  Fill(1, {{"10:30", {1}}, {"10:30", {6}}});
  Fill(2, {{"10:30", {1}}});
  EXPECT_EQ(Rows{}, Check());
}

TEST_F(BreakCheckTest, RowsOutOfTimeOrderArePassedOver) {
  Fill(1, {{"12:00", {1}}, {"10:30", {6}}});
  Fill(2, {{"12:00", {1}}});
  EXPECT_EQ(Rows{}, Check());
}

TEST_F(BreakCheckTest, ABreakAt0000IsPassedOver) {
  Fill(1, {{"00:00", {6}}, {"10:30", {1}}});
  Fill(2, {{"10:30", {1}}});
  EXPECT_EQ(Rows{}, Check());
  Fill(1, {{"00:00", {6}}});
  EXPECT_EQ((Rows{"t37800|10:30|Not Found| 2:00.00"}), Check());
}

TEST_F(BreakCheckTest, ADayThatBeginsAt0000InEverySplitIsOneRowAndNotChecked) {
  Fill(1, {{"00:00", {1}}, {"10:30", {1}}});
  Fill(2, {{"00:00", {1}}, {"11:30", {1}}});
  EXPECT_EQ((Rows{"t99999|--:--|Not Found|Not Found"}), Check());
  EXPECT_EQ(99999.0F, TimeOfResultKey(check.lvwResults.ListItems[0].key));
}

TEST_F(BreakCheckTest, AShorterDayIsNotFoundForTheRest) {
  Fill(1, {{"10:30", {1}}});
  Fill(2, {{"10:30", {1}}, {"11:30", {1}}, {"24:00", {1}}});
  EXPECT_EQ((Rows{"t41400|11:30|Not Found| 2:00.00", "t86400|24:00|Not Found| 2:00.00"}), Check());
}

TEST_F(BreakCheckTest, ALengthThatIsNoFiniteNumberNeverMatches) {
  for (const float length :
       {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
        -std::numeric_limits<float>::infinity()}) {
    CartRecord record = RecordOfLength(30);
    record.Length = length;
    PutCart(20, record);
    Fill(1, {{"10:30", {20}}});
    Fill(2, {{"10:30", {20}}});
    EXPECT_EQ((Rows{"t37800|10:30|--:--|--:--"}), Check());
    Fill(2, {{"10:30", {1}}});
    EXPECT_EQ((Rows{"t37800|10:30|--:--| 2:00.00"}), Check());
  }
}

TEST_F(BreakCheckTest, ALengthBeyondTheStartOfTheMinimumNeverMatches) {
  PutCart(21, 100000.0F);
  Fill(1, {{"10:30", {21}}});
  Fill(2, {{"10:30", {21}}});
  EXPECT_EQ((Rows{"t37800|10:30|--:--:--.--|--:--:--.--"}), Check());
}

TEST_F(BreakCheckTest, ALengthIsShownUpToAWholeDay) {
  PutCart(24, 86400.0F);
  PutCart(25, 86400.25F);
  gGeneralSettings.BreakDifferenceMS = 0;
  Fill(1, {{"24:00", {24}}});
  Fill(2, {{"24:00", {25}}});
  EXPECT_EQ((Rows{"t86400|24:00|24:00:00.00|--:--:--.--"}), Check());
  gGeneralSettings.DisplayCheckHH = false;
  EXPECT_EQ((Rows{"t86400|24:00|24:00:00|--:--:--"}), Check());
}

TEST_F(BreakCheckTest, AKeysTimeIsReadWithItsFraction) {
  EXPECT_EQ(86400.25F, TimeOfResultKey("t86400.25"));
}

TEST_F(BreakCheckTest, LengthsAreSummedInSinglePrecision) {
  PutCart(22, 65536.0F);
  PutCart(23, 0.003F);
  gGeneralSettings.BreakDifferenceMS = 0;
  Fill(1, {{"10:30", {22, 23, 23, 23, 23}}});
  Fill(2, {{"10:30", {22}}});
  EXPECT_EQ(Rows{}, Check());
  Fill(1, {{"10:30", {23, 23, 23, 23, 22}}});
  EXPECT_EQ(1U, Check().size());
}

TEST_F(BreakCheckTest, ColumnsAreBuiltOnceAndKept) {
  check.BuildColumns();
  gGeneralSettings.NumberActiveSplits = 3;
  Check();
  ASSERT_EQ(3U, check.lvwResults.ColumnHeaders.size());
  EXPECT_EQ("Time", check.lvwResults.ColumnHeaders[0].text);
  EXPECT_EQ(800, check.lvwResults.ColumnHeaders[0].width);
  EXPECT_EQ("South", check.lvwResults.ColumnHeaders[2].text);
  EXPECT_EQ(ColumnAlignment::kCentre, check.lvwResults.ColumnHeaders[2].alignment);
}

TEST_F(BreakCheckTest, ASecondCheckBeginsAnew) {
  Fill(1, {{"10:30", {1}}});
  Fill(2, {{"10:31", {2}}});
  Check();
  Fill(2, {{"10:30", {1}}});
  EXPECT_EQ(Rows{}, Check());
}

TEST_F(BreakCheckTest, TheBarMovesForwardToTheFurthestRowOfAGridOfAnyLength) {
  LogGrid& grid = gSplits(1).gridLog;
  grid.SetRows(40000);
  for (const auto& [row, time] : {std::pair{1, "06:00"}, {500, "07:00"}, {39000, "08:00"}}) {
    grid.SetText(row, kTimeColumn, time);
    grid.SetText(row, kPositionColumn, "1");
    grid.SetText(row, kCartColumn, "1");
  }
  Fill(2, {{"06:00", {1}}, {"07:00", {1}}, {"08:00", {1}}});
  EXPECT_EQ(Rows{}, Check());
  EXPECT_EQ(32000, check.ProgressBar1.Max);
  EXPECT_EQ((std::vector<std::pair<int32_t, int32_t>>{{1, 32000}, {500, 32000}, {0, 32000}}),
            ui.progress);
}

TEST_F(BreakCheckTest, ActiveSplitsOutsideTheirRangeStopTheProgramAndNameTheKey) {
  for (const int16_t splits : {int16_t{11}, int16_t{-1}, int16_t{-32768}}) {
    gGeneralSettings.NumberActiveSplits = splits;
    for (const bool columns : {true, false}) {
      try {
        columns ? check.BuildColumns() : check.CheckBreaks();
        ADD_FAILURE();
      } catch (const RunTimeError& error) {
        EXPECT_EQ(kSubscriptOutOfRange, error.number());
        EXPECT_NE(std::string::npos, std::string(error.what()).find("NumberActiveSplits="));
      }
    }
  }
  gGeneralSettings.NumberActiveSplits = 0;
  EXPECT_EQ(Rows{}, Check());
}

}  // namespace
}  // namespace logchecker
