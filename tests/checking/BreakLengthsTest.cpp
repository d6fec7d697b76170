// How long a break is held to be, and the times that the rows of the results stand for.
#include "cartstore/OpenAudiowall.h"
#include "checking/BreakCheck.h"
#include "common/GeneralSettings.h"
#include "common/TimeText.h"
#include "splitlogs/SplitLogTable.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class BreakLengthsTest : public StationTest {
 protected:
  BreakLengthsTest() {
    OpenStore(10);
    gGeneralSettings.NumberActiveSplits = 2;
  }
  // One break at 10:30 of a split, of adverts with these cart numbers.
  static void Fill(int16_t split, const std::vector<std::string>& carts) {
    LogGrid& grid = gSplits(split).gridLog;
    grid.SetRows(1);
    grid.SetRows(static_cast<int32_t>(carts.size()) + 1);
    int32_t row = 1;
    for (const std::string& cart : carts) {
      grid.SetText(row, kTimeColumn, row == 1 ? "10:30" : "");
      grid.SetText(row, kPositionColumn, "1");
      grid.SetText(row++, kCartColumn, cart);
    }
  }
  bool Passes() {
    check.CheckBreaks();
    return check.lvwResults.ListItems.empty();
  }

  BreakCheck check;
};

TEST_F(BreakLengthsTest, TheShortestLengthStartsAt99999SecondsAndIsNeverMore) {
  struct Case {
    float first;
    float second;
    bool passes;
  };
  const Case cases[] = {
      {99998.0F, 99998.0F, true},    {99998.0F, 99998.5F, true},      {99998.0F, 99998.625F, false},
      {99999.0F, 99999.0F, true},    {99999.5F, 99999.5F, true},      {99999.0F, 99999.5F, true},
      {99999.625F, 99999.0F, false}, {99999.625F, 99999.625F, false}, {100000.0F, 120.0F, false},
      {200000.0F, 200000.0F, false},
  };
  for (const Case& row : cases) {
    PutCart(1, row.first);
    PutCart(2, row.second);
    Fill(1, {"1"});
    Fill(2, {"2"});
    EXPECT_EQ(row.passes, Passes()) << row.first << " " << row.second;
    if (row.passes) continue;
    EXPECT_EQ(row.first, check.Mismatches[0].Lengths[0].seconds);
    EXPECT_EQ(row.second, check.Mismatches[0].Lengths[1].seconds);
  }
}

// The step from one single to the next is 1/128 of a second from 65536 seconds on.
TEST_F(BreakLengthsTest, ANegativeToleranceSmallerThanTheRoundingOfItsBoundsIsNone) {
  PutCart(1, 65536.0F);
  Fill(1, {"1"});
  Fill(2, {"1"});
  const std::pair<int32_t, bool> cases[] = {{0, true}, {-1, true}, {-2, false}, {-500, false}};
  for (const auto& [tolerance, passes] : cases) {
    gGeneralSettings.BreakDifferenceMS = tolerance;
    EXPECT_EQ(passes, Passes()) << tolerance;
  }
}

TEST_F(BreakLengthsTest, TheCartIsTheNumberAtTheStartOfItsText) {
  PutCart(2, 30.0F);
  struct Case {
    const char* text;
    float length;
  };
  const Case cases[] = {
      {"2", 30},         {"00000002", 30}, {" 2 ", 30},       {"2nd", 30},  {"2.4", 30},
      {"", 0},           {"two", 0},       {"-2", 0},         {"0", 0},     {"11", 0},
      {"4294967298", 0}, {"65538", 0},     {"2147483647", 0}, {"1e300", 0},
  };
  Fill(2, {});
  for (const Case& row : cases) {
    Fill(1, {row.text});
    ASSERT_FALSE(Passes());
    EXPECT_EQ(row.length, check.Mismatches[0].Lengths[0].seconds) << row.text;
  }
}

TEST_F(BreakLengthsTest, ACartNumberMayBeGreaterThan16BitsHold) {
  CloseAudiowall();
  OpenStore(40001);
  PutCart(40001, 30.0F);
  Fill(1, {"40001"});
  Fill(2, {});
  ASSERT_FALSE(Passes());
  EXPECT_EQ(30.0F, check.Mismatches[0].Lengths[0].seconds);
}

TEST_F(BreakLengthsTest, ACartWithAnythingToPlayCountsWithItsStoredLength) {
  struct Case {
    float totalLength;
    float endPoint;
    float playLength;
    float counted;
  };
  const Case cases[] = {
      {30, 30, 30, 30},    {30, 30, 0.5F, 30}, {12.5F, 0, 0, 30},
      {12.5F, 30, -1, 30}, {0, 30, 0.5F, 30},  {0, 30, 0, 0},
      {0, 0, 30, 0},       {-2, 0, 0, 0},      {-1, 30, 0.5F, 0},
  };
  Fill(1, {"1"});
  Fill(2, {});
  for (const Case& row : cases) {
    CartRecord record = RecordOfLength(30);
    record.TotalLength = row.totalLength;
    record.EndPoint = row.endPoint;
    record.PlayLength = row.playLength;
    PutCart(1, record);
    ASSERT_FALSE(Passes());
    EXPECT_EQ(row.counted, check.Mismatches[0].Lengths[0].seconds)
        << row.totalLength << " " << row.endPoint << " " << row.playLength;
  }
}

TEST_F(BreakLengthsTest, ACartThatCannotBeReadAddsNothingOfTheOneBeforeIt) {
  PutCart(1, 30.0F);
  Fill(1, {"1", "99", "abc", "1"});
  Fill(2, {});
  ASSERT_FALSE(Passes());
  EXPECT_EQ(60.0F, check.Mismatches[0].Lengths[0].seconds);
}

TEST_F(BreakLengthsTest, EveryMinuteOfTheDayIsARowWhoseKeyGivesItsTimeBack) {
  constexpr int32_t kMinutes = 24 * 60;
  LogGrid& grid = gSplits(1).gridLog;
  grid.SetRows(1);
  grid.SetRows(kMinutes * 2 + 1);
  for (int32_t minute = 1; minute <= kMinutes; ++minute) {
    const int32_t row = minute * 2 - 1;  // a row between two breaks stays empty
    grid.SetText(row, kTimeColumn, FormatTimeDisplay(minute * 60, kMaskHoursMinutes));
    grid.SetText(row, kPositionColumn, "1");
  }
  EXPECT_FALSE(Passes());
  ASSERT_EQ(static_cast<size_t>(kMinutes), check.lvwResults.ListItems.size());
  for (int32_t minute = 1; minute <= kMinutes; ++minute) {
    const auto index = static_cast<size_t>(minute - 1);
    const auto time = static_cast<float>(minute * 60);
    const ListItem& row = check.lvwResults.ListItems[index];
    ASSERT_EQ("t" + std::to_string(minute * 60), row.key);
    ASSERT_EQ(FormatTimeDisplay(time, kMaskHoursMinutes), row.text);
    ASSERT_EQ(time, TimeOfResultKey(row.key));
    ASSERT_EQ(time, check.Mismatches[index].Time);
  }
}

}  // namespace
}  // namespace logchecker
