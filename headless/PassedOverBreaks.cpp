#include "headless/PassedOverBreaks.h"

#include <algorithm>
#include <string>

#include "splitlogs/SplitLogTable.h"

namespace logchecker {

namespace {

constexpr char kMidnightText[] = "00:00";

// Breaks of one split and kind: how many, and the first of them.
struct PassedOver {
  int32_t count = 0;
  int32_t row = 0;
  std::string time;
  const char* reason = "";

  void Add(int32_t atRow, std::string_view atTime, const char* why) {
    if (count++ > 0) return;
    row = atRow;
    time = atTime;
    reason = why;
  }

  std::string Text(const SplitReport& split) const {
    return "split " + std::to_string(split.number) + " \"" + split.name + "\": " +
           (count == 1 ? std::string("a break is") : std::to_string(count) + " breaks are") +
           " not compared, " + (count == 1 ? "at " : "the first at ") + time + " (row " +
           std::to_string(row) + "): " + reason;
  }
};

const char* ReasonOf(const LogGrid& grid, int32_t row, const std::vector<float>& timesCompared) {
  const float time = grid.RowTime(row);
  if (!timesCompared.empty() && timesCompared[0] > kLastSecondOfADay) {
    return kNotCompared;
  }
  if (time == 0) return "its time can't be read";
  if (grid.FirstRowAt(time) != row) return "another one begins in the same minute";
  return "it stands behind a later one";
}

}  // namespace

void TellPassedOverBreaks(DayReport& report, const std::vector<float>& timesCompared) {
  for (const SplitReport& split : report.splits) {
    const LogGrid& grid = gSplits(split.number).gridLog;
    PassedOver midnight;
    PassedOver others;
    for (const BreakReport& one : split.breakList) {
      const int32_t row = one.row;
      const std::string_view text = grid.Text(row, kTimeColumn);
      const float time = grid.RowTime(row);
      if (text == kMidnightText) {
        midnight.Add(row, text, "the comparison passes over that time");
      } else if (time == 0 || grid.FirstRowAt(time) != row ||
                 !std::binary_search(timesCompared.begin(), timesCompared.end(), time)) {
        others.Add(row, text, ReasonOf(grid, row, timesCompared));
      }
    }
    if (midnight.count > 0) {
      report.warnings.push_back({WarningKind::kMidnight, split.number, midnight.Text(split)});
    }
    if (others.count > 0) {
      report.warnings.push_back({WarningKind::kPassedOver, split.number, others.Text(split)});
    }
  }
}

}  // namespace logchecker
