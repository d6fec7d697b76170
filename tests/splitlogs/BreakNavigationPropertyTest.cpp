#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "splitlogs/SplitLog.h"

namespace logchecker {
namespace {

std::string RandomTimeText() {
  const int hours = *rc::gen::inRange(0, 25);
  const int minutes = *rc::gen::inRange(0, 60);
  const std::string time = {
      static_cast<char>('0' + hours / 10), static_cast<char>('0' + hours % 10), ':',
      static_cast<char>('0' + minutes / 10), static_cast<char>('0' + minutes % 10)};
  return *rc::gen::weightedElement<std::string>(
      {{6, ""}, {6, time}, {1, "--:--"}, {1, " "}, {1, "x"}, {1, "9:5"}});
}

void FillRandomly(LogGrid& grid) {
  grid.SetRows(*rc::gen::inRange(1, 60));
  for (int32_t row = 1; row < grid.Rows(); ++row) {
    grid.SetText(row, kTimeColumn, RandomTimeText());
    grid.SetText(row, kPositionColumn, *rc::gen::element<std::string>("", "", " ", "1"));
  }
}

int32_t PlainFindByTime(const LogGrid& grid, float time, bool nextIfMissing) {
  for (int32_t r = 1; r < grid.Rows(); ++r) {
    const float t = grid.RowTime(r);
    if (t == time) return r;
    if (nextIfMissing && t > time) return r;
  }
  return 0;
}

RC_GTEST_PROP(BreakNavigationProperty, TheIndexAnswersWhatTheScanWouldHave, ()) {
  SplitLog log;
  FillRandomly(log.gridLog);
  for (int i = 0; i < 20; ++i) {
    const bool exact = *rc::gen::arbitrary<bool>() && log.gridLog.Rows() > 1;
    const float time = exact ? log.gridLog.RowTime(*rc::gen::inRange(1, log.gridLog.Rows()))
                             : static_cast<float>(*rc::gen::inRange(-100, 900000)) / 10;
    int32_t row = -1;
    log.FindBreakByTime(time, kTrue, row);
    RC_ASSERT(row == PlainFindByTime(log.gridLog, time, true));
    log.FindBreakByTime(time, kFalse, row);
    RC_ASSERT(row == PlainFindByTime(log.gridLog, time, false));
    if (log.gridLog.Rows() > 1) {
      log.gridLog.SetText(*rc::gen::inRange(1, log.gridLog.Rows()), kTimeColumn, RandomTimeText());
    }
  }
}

bool HasPosition(const LogGrid& grid, int32_t row) {
  return grid.Text(row, kPositionColumn).find_first_not_of(' ') != std::string_view::npos;
}

RC_GTEST_PROP(BreakNavigationProperty, TheWalksByRowDoWhatTheirStepsSay, ()) {
  SplitLog log;
  FillRandomly(log.gridLog);
  const LogGrid& grid = log.gridLog;
  for (int32_t row = 0; row < grid.Rows(); ++row) {
    int32_t expected = row;
    bool seen = false;
    for (int32_t r = row; r > 1; --r) {
      if (HasPosition(grid, r)) {
        seen = true;
      } else if (seen) {
        expected = r + 1;
        break;
      }
    }
    int32_t found = -1;
    log.FindBeginningofBreak(row, found);
    RC_ASSERT(found == expected);

    expected = grid.Rows() - 1;
    for (int32_t r = row + 1; r < grid.Rows(); ++r) {
      if (!HasPosition(grid, r)) {
        expected = r - 1;
        break;
      }
    }
    log.FindEndofBreak(row, found);
    RC_ASSERT(found == expected);

    expected = row;
    bool gap = false;
    for (int32_t r = row; r < grid.Rows(); ++r) {
      if (!HasPosition(grid, r)) {
        gap = true;
      } else if (gap) {
        expected = r;
        break;
      }
    }
    log.FindNextBreak(row, found);
    RC_ASSERT(found == expected);
  }
}

}  // namespace
}  // namespace logchecker
