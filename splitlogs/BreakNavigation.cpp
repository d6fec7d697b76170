// How breaks are found in the grid, by time or by row, and selected.
#include <optional>

#include "splitlogs/SplitLog.h"

namespace logchecker {

void SplitLog::FindBreakByTime(float seconds, int16_t nextIfMissing, int32_t& row) const {
  row = nextIfMissing == kTrue ? gridLog.FirstRowAtOrAfter(seconds) : gridLog.FirstRowAt(seconds);
}

void SplitLog::SelectBreakByTime(float seconds) {
  int32_t target = 0;
  FindBreakByTime(seconds, kTrue, target);
  if (gridLog.Row() != target) gridLog.SetRow(target);
  if (target > 0) gridLog.SetTopRow(target);
  int32_t last = 0;
  FindEndofBreak(gridLog.Row(), last);
  if (gridLog.SelectionEndRow() != last) gridLog.SetSelectionEndRow(last);
  gridLog.SetSelectionEndColumn(kLogColumns - 1);
  // The time 0 asks for the first break, whenever that is.
  const bool found = seconds == 0 || (target > 0 && gridLog.RowTime(target) == seconds);
  gridLog.SetMissedTime(found ? std::nullopt : std::optional(seconds));
}

void SplitLog::FindBeginningofBreak(int32_t row, int32_t& firstRow) const {
  bool seenBreak = false;
  for (int32_t r = row; r > 1; --r) {
    if (gridLog.IsAdvertRow(r)) {
      seenBreak = true;
    } else if (seenBreak) {
      firstRow = r + 1;
      return;
    }
  }
  firstRow = row;
}

void SplitLog::FindEndofBreak(int32_t row, int32_t& lastRow) const {
  for (int32_t r = row + 1; r < gridLog.Rows(); ++r) {
    if (!gridLog.IsAdvertRow(r)) {
      lastRow = r - 1;
      return;
    }
  }
  lastRow = gridLog.Rows() - 1;
}

void SplitLog::FindNextBreak(int32_t row, int32_t& nextRow) const {
  bool seenGap = false;
  for (int32_t r = row; r < gridLog.Rows(); ++r) {
    if (!gridLog.IsAdvertRow(r)) {
      seenGap = true;
    } else if (seenGap) {
      nextRow = r;
      return;
    }
  }
  nextRow = row;
}

void SplitLog::GetBreakTimeByRow(int32_t row, float& seconds) const {
  seconds = gridLog.RowTime(row);
}

}  // namespace logchecker
