#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>

#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "splitlogs/SplitLog.h"

namespace logchecker {
namespace {

std::string RandomTimeText() {
  const int hours = *rc::gen::inRange(0, 25);
  const int minutes = *rc::gen::inRange(0, 60);
  const std::string time = {
      static_cast<char>('0' + hours / 10), static_cast<char>('0' + hours % 10), ':',
      static_cast<char>('0' + minutes / 10), static_cast<char>('0' + minutes % 10)};
  const std::string garbage = *rc::gen::container<std::string>(rc::gen::oneOf(
      rc::gen::element('0', '2', '9', '-', '.', 'e', ' '), rc::gen::arbitrary<char>()));
  return *rc::gen::weightedElement<std::string>({{6, ""},
                                                 {6, time},
                                                 {1, "--:--"},
                                                 {1, " "},
                                                 {1, "x"},
                                                 {1, "9:5"},
                                                 {1, "-2:30"},
                                                 {1, garbage}});
}

void FillRandomly(LogGrid& grid) {
  grid.SetRows(*rc::gen::inRange(1, 60));
  for (int32_t row = 1; row < grid.Rows(); ++row) {
    grid.SetText(row, kTimeColumn, RandomTimeText());
    grid.SetText(row, kPositionColumn, *rc::gen::element<std::string>("", "", " ", "1"));
  }
}

float PlainRowTime(const LogGrid& grid, int32_t row) {
  const std::string_view text = grid.Text(row, kTimeColumn);
  return static_cast<float>(Val(Mid(text, 1, 2)) * 3600 + Val(Mid(text, 4, 2)) * 60);
}

int32_t PlainFindByTime(const LogGrid& grid, float time, bool nextIfMissing) {
  for (int32_t r = 1; r < grid.Rows(); ++r) {
    const float t = PlainRowTime(grid, r);
    if (t == time) return r;
    if (nextIfMissing && t > time) return r;
  }
  return 0;
}

float RandomTime() {
  const float tenths = static_cast<float>(*rc::gen::inRange(-100, 900000)) / 10;
  constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
  return *rc::gen::weightedElement<float>(
      {{20, tenths}, {2, 0.0F}, {1, -1.0F}, {1, 99999.0F}, {1, kNoNumber}});
}

RC_GTEST_PROP(BreakNavigationProperty, TheIndexAnswersWhatTheScanWouldHave, ()) {
  SplitLog log;
  FillRandomly(log.gridLog);
  for (int i = 0; i < 20; ++i) {
    const bool exact = *rc::gen::arbitrary<bool>() && log.gridLog.Rows() > 1;
    const float time =
        exact ? PlainRowTime(log.gridLog, *rc::gen::inRange(1, log.gridLog.Rows())) : RandomTime();
    int32_t row = -1;
    log.FindBreakByTime(time, kTrue, row);
    RC_ASSERT(row == PlainFindByTime(log.gridLog, time, true));
    log.FindBreakByTime(time, kFalse, row);
    RC_ASSERT(row == PlainFindByTime(log.gridLog, time, false));
    if (*rc::gen::inRange(0, 5) == 0) {
      log.gridLog.SetRows(*rc::gen::inRange(1, 60));
    } else if (log.gridLog.Rows() > 1) {
      log.gridLog.SetText(*rc::gen::inRange(1, log.gridLog.Rows()), kTimeColumn, RandomTimeText());
    }
    for (int32_t r = 1; r < log.gridLog.Rows(); ++r) {
      float seconds = -7;
      log.GetBreakTimeByRow(r, seconds);
      RC_ASSERT(seconds == PlainRowTime(log.gridLog, r));
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

RC_GTEST_PROP(BreakNavigationProperty, ASelectionRunsFromTheBreakFoundToItsEnd, ()) {
  SplitLog log;
  FillRandomly(log.gridLog);
  LogGrid& grid = log.gridLog;
  grid.SetRow(*rc::gen::inRange(0, grid.Rows()));
  grid.SetTopRow(*rc::gen::inRange(0, grid.Rows()));
  const int32_t topRow = grid.TopRow();
  const float time = RandomTime();
  log.SelectBreakByTime(time);
  const int32_t target = PlainFindByTime(grid, time, true);
  int32_t last = -1;
  log.FindEndofBreak(target, last);
  RC_ASSERT(grid.Row() == target);
  RC_ASSERT(grid.TopRow() == (target > 0 ? target : topRow));
  RC_ASSERT(grid.SelectionEndRow() == last);
  RC_ASSERT(grid.SelectionEndColumn() == kLogColumns - 1);
}

}  // namespace
}  // namespace logchecker
