// Which lengths of a break time are set off from the others.
#include "checking/OddLengths.h"

#include <limits>

#include "common/GeneralSettings.h"
#include "splitlogs/SplitLogTable.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr float kNone = -1;  // no break
constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();

using OddLengthsTest = StationTest;

// One character a split: "x" for a length that stands out, "." for any other.
std::string Marks(const std::vector<float>& seconds) {
  std::vector<BreakMismatch::Length> lengths;
  for (const float length : seconds) lengths.push_back({length != kNone, length});
  std::string marks;
  for (const bool odd : OddLengths(lengths)) marks += odd ? 'x' : '.';
  return marks;
}

TEST_F(OddLengthsTest, TheLengthThatDiffersFromMostStandsOut) {
  gGeneralSettings.BreakDifferenceMS = 500;
  const struct {
    std::vector<float> seconds;
    const char* marks;
  } cases[] = {
      {{120, 120, 121.5F, 120, 120}, "..x.."},
      {{120, 120.5F, 120, 80}, "...x"},    // a length on the bound is like the others
      {{120, 120.75F, 120}, ".x."},        // and one beyond it is not
      {{kNone, 120, 120, 121}, "...x"},    // a missing break has no length
      {{30, 30, 31.5F, 33, 34}, "..xxx"},  // two that match are more than any other
      {{120, 120, kNoNumber}, "..x"},      // no number matches nothing
      {{120, 121}, ".."},                  // either could be the wrong one
      {{120, 120, 121, 121}, "...."},      // so could either pair
      {{120, 120.4F, 120.8F}, "..."},      // and the middle one goes with both
      {{kNone, 120, kNone}, "..."},        // nothing to differ from
      {{kNone, kNone}, ".."},
      {{}, ""},
  };
  for (const auto& row : cases) EXPECT_EQ(row.marks, Marks(row.seconds));
}

TEST_F(OddLengthsTest, ATextHasItsRemarkBesideItAndStaysAsItIs) {
  OpenStore(10);
  PutCart(1, 30.0F);
  PutCart(2, 40.0F);
  gGeneralSettings.NumberActiveSplits = 4;
  for (int16_t n = 1; n <= 3; ++n) {
    LogGrid& grid = gSplits(n).gridLog;
    grid.SetRows(3);
    grid.SetText(1, kTimeColumn, "10:30");
    grid.SetText(1, kPositionColumn, "1");
    grid.SetText(1, kCartColumn, n == 2 ? "2" : "1");
  }
  BreakCheck check;
  check.CheckBreaks();
  ASSERT_EQ(1U, check.lvwResults.ListItems.size());
  const std::vector<ListSubItem>& cells = check.lvwResults.ListItems[0].ListSubItems;
  ASSERT_EQ(4U, cells.size());
  EXPECT_EQ("", cells[0].Remark);
  EXPECT_EQ("differs from most splits", cells[1].Remark);
  EXPECT_EQ("no break at this time", cells[3].Remark);
  EXPECT_EQ("Not Found", cells[3].text);
  for (const ListSubItem& cell : cells) EXPECT_FALSE(cell.Bold) << "paper has it as it was";
}

}  // namespace
}  // namespace logchecker
