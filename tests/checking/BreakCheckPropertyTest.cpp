// The comparison against its steps, written down plainly, on random days.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "cartstore/Velmar_Cart_Routines.h"
#include "checking/BreakCheck.h"
#include "common/GeneralSettings.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "common/TimeText.h"
#include "splitlogs/SplitLogTable.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

float PlainRowTime(const LogGrid& grid, int32_t row) {
  const std::string_view text = grid.Text(row, kTimeColumn);
  return static_cast<float>(Val(Mid(text, 1, 2)) * 3600 + Val(Mid(text, 4, 2)) * 60);
}

int32_t PlainFind(const LogGrid& grid, float time, bool nextIfMissing) {
  for (int32_t r = 1; r < grid.Rows(); ++r) {
    const float t = PlainRowTime(grid, r);
    if (t == time || (nextIfMissing && t > time)) return r;
  }
  return 0;
}

int32_t PlainEnd(const LogGrid& grid, int32_t row) {
  for (int32_t r = row + 1; r < grid.Rows(); ++r) {
    if (Trim(grid.Text(r, kPositionColumn)).empty()) return r - 1;
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
      BreakTime[i] = row > 0 ? PlainRowTime(grid, row) : -1.0F;
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
      std::string row = "t" + std::to_string(static_cast<int>(CurrentTime)) + "|" +
                        FormatTimeDisplay(CurrentTime, 4);
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

// Minutes of the day with the carts of the break there, in the order of the grid.
using RandomDay = std::vector<std::pair<int, std::vector<int>>>;

std::vector<int> RandomCarts() {
  std::vector<int> carts(*rc::gen::inRange<size_t>(1, 4));
  for (int& cart : carts) cart = *rc::gen::inRange(0, 12);
  return carts;
}

RandomDay AnyDay() {
  RandomDay day;
  const int breaks = *rc::gen::inRange(0, 12);
  for (int i = 0; i < breaks; ++i) {
    const int minute = *rc::gen::weightedOneOf<int>(
        {{1, rc::gen::just(0)}, {1, rc::gen::just(1440)}, {12, rc::gen::inRange(1, 40)}});
    day.emplace_back(minute, RandomCarts());
  }
  return day;
}

// What another split makes of the same day: most breaks as planned, some with another cart, some a
// minute late, some missing, some twice.
RandomDay Variant(const RandomDay& plan) {
  RandomDay day;
  for (const auto& [minute, carts] : plan) {
    const int fate = *rc::gen::weightedElement<int>({{16, 0}, {2, 1}, {1, 2}, {1, 3}, {1, 4}});
    if (fate == 3) continue;
    day.emplace_back(fate == 2 ? minute + 1 : minute, carts);
    if (fate == 1) day.back().second[0] = *rc::gen::inRange(0, 12);
    if (fate == 4) day.emplace_back(minute, RandomCarts());
  }
  return day;
}

void FillGrid(LogGrid& grid, RandomDay day, bool ordered) {
  const auto earlier = [](const auto& a, const auto& b) { return a.first < b.first; };
  if (ordered) std::stable_sort(day.begin(), day.end(), earlier);
  grid.SetRows(1);
  grid.SetRows(200);
  int32_t row = 1;
  for (const auto& [minute, carts] : day) {
    // 24:01 is outside the day and has the row time 0.
    grid.SetText(row, kTimeColumn, FormatTimeDisplay(minute * 60, 4));
    for (const int cart : carts) {
      grid.SetText(row, kPositionColumn, "1");
      grid.SetText(row++, kCartColumn, std::to_string(cart));
    }
    row += 2;
  }
  // With or without the total and the gap of the last break.
  grid.SetRows(day.empty() ? 1 : row - 2 * *rc::gen::inRange(0, 2));
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
  const bool sharePlan = *rc::gen::weightedElement<bool>({{4, true}, {1, false}});
  const RandomDay plan = AnyDay();
  for (int16_t n = 1; n <= gGeneralSettings.NumberActiveSplits; ++n) {
    FillGrid(gSplits(n).gridLog, sharePlan ? Variant(plan) : AnyDay(), ordered);
  }
  BreakCheck check;
  check.CheckBreaks();
  std::vector<std::string> rows;
  for (const ListItem& item : check.lvwResults.ListItems) {
    std::string row = item.key + "|" + item.text;
    for (const ListSubItem& subItem : item.ListSubItems) row += "|" + subItem.text;
    rows.push_back(row);
  }
  RC_ASSERT(rows == PlainCheck());
}

}  // namespace
}  // namespace logchecker
