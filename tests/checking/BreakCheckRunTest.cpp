// What a check shows while it runs, what it leaves alone, and the exact edges of its bounds.
#include <cmath>

#include "checking/BreakCheck.h"
#include "common/ErrorState.h"
#include "common/GeneralSettings.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class BreakCheckRunTest : public StationTest {
 protected:
  BreakCheckRunTest() {
    OpenStore(10);
    PutCart(1, 120.0F);
    gGeneralSettings.NumberActiveSplits = 2;
  }
  // Rows with a break of one advert each, at these rows.
  static void Fill(int16_t split, int32_t rows,
                   const std::vector<std::pair<int32_t, const char*>>& breaks, int32_t cart = 1) {
    LogGrid& grid = gSplits(split).gridLog;
    grid.SetRows(1);
    grid.SetRows(rows);
    for (const auto& [row, time] : breaks) {
      grid.SetText(row, kTimeColumn, time);
      grid.SetText(row, kPositionColumn, "1");
      grid.SetText(row, kCartColumn, std::to_string(cart));
    }
  }
  // Whether splits whose breaks last 120 seconds and `length` pass.
  bool Passes(float length) {
    PutCart(2, length);
    Fill(1, 4, {{1, "10:30"}}, 1);
    Fill(2, 4, {{1, "10:30"}}, 2);
    check.CheckBreaks();
    return check.lvwResults.ListItems.empty();
  }
  size_t Found() {
    check.CheckBreaks();
    return check.lvwResults.ListItems.size();
  }

  BreakCheck check;
};

// Looks at the check each time that its bar moves.
class WatchingUi : public RecordingUi {
 public:
  explicit WatchingUi(const BreakCheck& check) : check_(check) {}
  void ShowProgress(int32_t value, int32_t maximum) override {
    RecordingUi::ShowProgress(value, maximum);
    if (value == 0) return;  // the end of the run
    EXPECT_FALSE(check_.cmdPrintEnabled);
    EXPECT_FALSE(check_.cmdSaveEnabled);
    EXPECT_EQ(MousePointer::kHourglass, pointer);
    found.push_back(check_.lvwResults.ListItems.size());
  }

  std::vector<size_t> found;

 private:
  const BreakCheck& check_;
};

TEST_F(BreakCheckRunTest, WhileACheckRunsNothingCanBePrintedOrSaved) {
  Fill(1, 10, {{1, "10:30"}, {4, "11:30"}});
  Fill(2, 10, {{1, "12:30"}});
  EXPECT_EQ(3U, Found());
  EXPECT_TRUE(check.cmdPrintEnabled);
  const WatchingUi watching(check);
  EXPECT_EQ(3U, Found());
  // The rows of the run before are gone when it begins.
  EXPECT_EQ((std::vector<size_t>{0, 1}), watching.found);
}

// Turns the hundredths off once the first row is there.
class SwitchingUi : public RecordingUi {
 public:
  explicit SwitchingUi(const BreakCheck& check) : check_(check) {}
  void ShowProgress(int32_t value, int32_t maximum) override {
    RecordingUi::ShowProgress(value, maximum);
    if (!check_.lvwResults.ListItems.empty()) gGeneralSettings.DisplayCheckHH = false;
  }

 private:
  const BreakCheck& check_;
};

TEST_F(BreakCheckRunTest, WhetherHundredthsShowIsReadAtEachRow) {
  Fill(1, 10, {{1, "10:30"}, {4, "11:30"}});
  Fill(2, 10, {{1, "12:30"}});
  const SwitchingUi switching(check);
  ASSERT_EQ(3U, Found());
  EXPECT_EQ(" 2:00.00", check.lvwResults.ListItems[0].ListSubItems[0].text);
  EXPECT_EQ(" 2:00", check.lvwResults.ListItems[1].ListSubItems[0].text);
}

TEST_F(BreakCheckRunTest, TheBarsMaximumIsTheGreatestRowCountButNotAbove32000) {
  struct Case {
    int32_t rows;
    int32_t maximum;
  };
  for (const Case& row :
       {Case{2, 10}, Case{11, 11}, Case{31999, 31999}, Case{32000, 32000}, Case{32001, 32000}}) {
    Fill(1, row.rows, {{1, "10:30"}});
    Fill(2, 10, {{1, "10:30"}});
    Found();
    EXPECT_EQ(row.maximum, check.ProgressBar1.Max) << row.rows;
  }
  Fill(1, 1, {});
  Fill(2, 1, {});
  Found();
  EXPECT_EQ(1, check.ProgressBar1.Max);
}

TEST_F(BreakCheckRunTest, TheBarStandsAtTheFurthestRowUpTo32000) {
  Fill(1, 32002, {{1, "06:00"}, {32000, "07:00"}});
  Fill(2, 32002, {{1, "06:00"}, {32001, "07:00"}});
  EXPECT_EQ(0U, Found());
  EXPECT_EQ((std::vector<std::pair<int32_t, int32_t>>{{1, 32000}, {32000, 32000}, {0, 32000}}),
            ui.progress);
}

TEST_F(BreakCheckRunTest, TheBarIsLeftAloneWhileTheFurthestRowStaysTheSame) {
  Fill(1, 10, {{1, "10:30"}, {4, "11:30"}});
  Fill(2, 10, {{1, "10:30"}, {8, "12:30"}});
  EXPECT_EQ(2U, Found());
  EXPECT_EQ((std::vector<std::pair<int32_t, int32_t>>{{1, 10}, {8, 10}, {0, 10}}), ui.progress);
}

TEST_F(BreakCheckRunTest, ABreakBehindRow32000IsCheckedLikeAnyOther) {
  PutCart(2, 60.0F);
  Fill(1, 40000, {{39000, "08:00"}});
  Fill(2, 10, {{1, "08:00"}}, 2);
  EXPECT_EQ(1U, Found());
}

TEST_F(BreakCheckRunTest, TheUpperBoundIsExactToTheLastBit) {
  EXPECT_TRUE(Passes(120.5F));
  EXPECT_FALSE(Passes(std::nextafter(120.5F, 200.0F)));
  EXPECT_TRUE(Passes(119.5F));
  EXPECT_FALSE(Passes(std::nextafter(119.5F, 0.0F)));
}

TEST_F(BreakCheckRunTest, ToleranceIsInThousandthsOfASecond) {
  struct Case {
    int32_t tolerance;
    float length;
    bool passes;
  };
  const Case cases[] = {
      {0, 120.0F, true},
      {0, 120.001F, false},
      {1, 120.001F, true},
      {1, 120.0011F, false},
      // The nearest single to 120.3 is greater; the bound is rounded to it.
      {300, 120.3F, true},
      {999, 120.99F, true},
      {999, 121.0F, false},
      {1000, 121.0F, true},
      {60000, 180.0F, true},
      {60000, 180.01F, false},
      {2147483647, 99998.0F, true},
      {-2147483647, 120.0F, false},
  };
  for (const Case& row : cases) {
    gGeneralSettings.BreakDifferenceMS = row.tolerance;
    EXPECT_EQ(row.passes, Passes(row.length)) << row.tolerance << " " << row.length;
  }
}

TEST_F(BreakCheckRunTest, CartsAreReadAnewAtEachCheck) {
  PutCart(2, 120.0F);
  Fill(1, 4, {{1, "10:30"}}, 1);
  Fill(2, 4, {{1, "10:30"}}, 2);
  EXPECT_EQ(0U, Found());
  PutCart(2, 60.0F);
  EXPECT_EQ(1U, Found());
}

TEST_F(BreakCheckRunTest, AStoreThatIsGoneIsBreaksWithoutLength) {
  Fill(1, 4, {{1, "10:30"}});
  Fill(2, 4, {{1, "10:30"}});
  os.script.FailNamed("Files.GetRecord", 0, kDeviceIoError);
  os.script.FailNamed("Files.OpenRandom", 0, kDeviceIoError);
  EXPECT_EQ(0U, Found());
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(BreakCheckRunTest, ABreakThatIsNotThereHasNoLengthWhateverCameBefore) {
  Fill(1, 10, {{1, "10:30"}, {4, "11:30"}});
  Fill(2, 4, {{1, "10:30"}});
  ASSERT_EQ(1U, Found());
  EXPECT_TRUE(check.Mismatches[0].Lengths[0].found);
  EXPECT_EQ(120.0F, check.Mismatches[0].Lengths[0].seconds);
  EXPECT_FALSE(check.Mismatches[0].Lengths[1].found);
  EXPECT_EQ(0.0F, check.Mismatches[0].Lengths[1].seconds);
}

TEST_F(BreakCheckRunTest, ColumnsThatAreBuiltAgainTakeThePlaceOfTheOldOnes) {
  check.BuildColumns();
  gGeneralSettings.NumberActiveSplits = 10;
  check.BuildColumns();
  EXPECT_EQ(11U, check.lvwResults.ColumnHeaders.size());
}

TEST_F(BreakCheckRunTest, OnlyActiveSplitsAreMadeAndLookedAt) {
  gSplits.UnloadAll();
  Fill(3, 4, {{1, "10:30"}});
  EXPECT_EQ(0U, Found());
  EXPECT_TRUE(gSplits.IsLoaded(2));
  EXPECT_FALSE(gSplits.IsLoaded(4));
  EXPECT_TRUE(check.picNoResultsVisible);
  gGeneralSettings.NumberActiveSplits = 3;
  EXPECT_EQ(1U, Found());
  EXPECT_FALSE(check.picNoResultsVisible);
}

TEST_F(BreakCheckRunTest, ACheckLeavesTheSelectionOfEverySplitAlone) {
  Fill(1, 10, {{1, "10:30"}, {4, "11:30"}});
  Fill(2, 10, {{1, "12:30"}});
  gSplits(1).SelectBreakByTime(11 * 3600);
  Found();
  EXPECT_EQ(4, gSplits(1).gridLog.Row());
  EXPECT_EQ(4, gSplits(1).gridLog.TopRow());
  EXPECT_EQ(0, gSplits(2).gridLog.Row());
}

TEST_F(BreakCheckRunTest, ASplitWithoutALogIsNotFoundWhereTheOthersBeginAtMidnight) {
  Fill(1, 10, {{1, "00:00"}, {4, "11:30"}});
  ASSERT_EQ(1U, Found());
  const ListItem& row = check.lvwResults.ListItems[0];
  EXPECT_EQ("t99999", row.key);
  EXPECT_EQ("--:--", row.text);
  EXPECT_EQ("Not Found", row.ListSubItems[0].text);
  EXPECT_EQ("Not Found", row.ListSubItems[1].text);
}

TEST_F(BreakCheckRunTest, AnAdvertThatOnlyHasBlanksForAPositionEndsTheBreak) {
  PutCart(2, 60.0F);
  Fill(1, 5, {{1, "10:30"}, {2, ""}, {3, ""}});
  gSplits(1).gridLog.SetText(2, kPositionColumn, "  ");
  Fill(2, 5, {{1, "10:30"}});
  EXPECT_EQ(0U, Found());
}

TEST_F(BreakCheckRunTest, ABreakWithoutAnEndReachesTheLastRow) {
  PutCart(2, 240.0F);
  Fill(1, 3, {{1, "10:30"}, {2, ""}});
  Fill(2, 2, {{1, "10:30"}}, 2);
  EXPECT_EQ(0U, Found());
}

}  // namespace
}  // namespace logchecker
