// The comparison against its steps, written down plainly, on random days.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>

#include "cartstore/Velmar_Cart_Routines.h"
#include "checking/BreakCheck.h"
#include "common/GeneralSettings.h"
#include "common/Numbers.h"
#include "common/TimeText.h"
#include "splitlogs/SplitLogTable.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

int32_t PlainFind(const LogGrid& grid, float time, bool nextIfMissing) {
  for (int32_t r = 1; r < grid.Rows(); ++r) {
    const float t = grid.RowTime(r);
    if (t == time || (nextIfMissing && t > time)) return r;
  }
  return 0;
}

int32_t PlainEnd(const LogGrid& grid, int32_t row) {
  for (int32_t r = row + 1; r < grid.Rows(); ++r) {
    if (grid.Text(r, kPositionColumn).empty()) return r - 1;
  }
  return grid.Rows() - 1;
}

std::vector<std::string> PlainCheck() {
  std::vector<std::string> rows;
  const int splits = gGeneralSettings.NumberActiveSplits;
  bool anyLoaded = false;
  for (int16_t n = 1; n <= splits; ++n) anyLoaded = anyLoaded || gSplits(n).gridLog.Rows() > 1;
  if (!anyLoaded) return rows;
  volatile float CurrentTime = -1.0F;
  while (true) {
    float BreakTime[10];
    float BreakLength[10];
    bool any = false;
    for (int i = 0; i < splits; ++i) {
      const LogGrid& grid = gSplits(static_cast<int16_t>(i + 1)).gridLog;
      const int32_t row = PlainFind(grid, CurrentTime, true);
      BreakTime[i] = row > 0 ? grid.RowTime(row) : -1.0F;
      any = any || BreakTime[i] >= 0;
    }
    if (!any) return rows;
    CurrentTime = 99999.0F;
    for (int i = 0; i < splits; ++i) {
      if (BreakTime[i] < CurrentTime && BreakTime[i] > 0) CurrentTime = BreakTime[i];
    }
    float ShortestLength = 99999.0F;
    for (int i = 0; i < splits; ++i) {
      const LogGrid& grid = gSplits(static_cast<int16_t>(i + 1)).gridLog;
      const int32_t row = PlainFind(grid, CurrentTime, false);
      BreakTime[i] = -1.0F;
      BreakLength[i] = 0;
      if (row == 0) continue;
      BreakTime[i] = CurrentTime;
      for (int32_t r = row; r <= PlainEnd(grid, row); ++r) {
        CartInfo info;
        LoadCartInfo(info, ToInt32(Val(grid.Text(r, kCartColumn))));
        volatile float sum = BreakLength[i] + info.Length;
        if (info.PlayLength > 0) BreakLength[i] = sum;
      }
      if (BreakLength[i] < ShortestLength) ShortestLength = BreakLength[i];
    }
    bool mismatch = false;
    for (int i = 0; i < splits && !mismatch; ++i) mismatch = BreakTime[i] != CurrentTime;
    const double T = gGeneralSettings.BreakDifferenceMS / 1000.0;
    for (int i = 0; i < splits && !mismatch; ++i) {
      volatile float lower = static_cast<float>(ShortestLength - T);
      volatile float upper = static_cast<float>(T + ShortestLength);
      mismatch = lower > BreakLength[i] || upper < BreakLength[i];
    }
    if (mismatch) {
      std::string row = FormatTimeDisplay(CurrentTime, 4);
      for (int i = 0; i < splits; ++i) {
        row += "|";
        row += BreakTime[i] >= 0
                   ? FormatTimeDisplay(BreakLength[i], gGeneralSettings.DisplayCheckHH ? 201 : 202)
                   : "Not Found";
      }
      rows.push_back(row);
    }
    CurrentTime = static_cast<float>(CurrentTime + 0.1);
  }
}

void FillRandomDay(LogGrid& grid, bool ordered) {
  std::vector<int> minutes = *rc::gen::container<std::vector<int>>(
      rc::gen::weightedOneOf<int>({{1, rc::gen::just(0)}, {9, rc::gen::inRange(0, 20)}}));
  if (ordered) std::sort(minutes.begin(), minutes.end());
  grid.SetRows(1);
  grid.SetRows(2000);
  int32_t row = 1;
  for (const int minute : minutes) {
    grid.SetText(row, kTimeColumn, FormatTimeDisplay(minute * 4320, 4));
    const int adverts = *rc::gen::inRange(1, 4);
    for (int i = 0; i < adverts; ++i) {
      grid.SetText(row, kPositionColumn, "1");
      grid.SetText(row++, kCartColumn, std::to_string(*rc::gen::inRange(0, 12)));
    }
    row += 2;
  }
  grid.SetRows(row);
}

class BreakCheckProperty : public StationTest {
 protected:
  BreakCheckProperty() {
    OpenStore(10);
    // Lengths whose sums come close to a tolerance of half a second from both sides.
    for (int32_t cart = 1; cart <= 9; ++cart) {
      PutCart(cart, 10.0F + static_cast<float>(cart) * 0.1F);
    }
  }
};

RC_GTEST_FIXTURE_PROP(BreakCheckProperty, EqualsItsStepsWrittenPlainly, ()) {
  gGeneralSettings.NumberActiveSplits = *rc::gen::inRange<int16_t>(1, 5);
  gGeneralSettings.BreakDifferenceMS = *rc::gen::element(500, 0, 100, 300, -1, 2000);
  gGeneralSettings.DisplayCheckHH = *rc::gen::arbitrary<bool>();
  const bool ordered = *rc::gen::weightedElement<bool>({{3, true}, {1, false}});
  for (int16_t n = 1; n <= gGeneralSettings.NumberActiveSplits; ++n) {
    FillRandomDay(gSplits(n).gridLog, ordered);
  }
  BreakCheck check;
  check.CheckBreaks();
  std::vector<std::string> rows;
  for (const ListItem& item : check.lvwResults.ListItems) {
    std::string row = item.text;
    for (const ListSubItem& subItem : item.ListSubItems) row += "|" + subItem.text;
    rows.push_back(row);
  }
  RC_ASSERT(rows == PlainCheck());
}

}  // namespace
}  // namespace logchecker
