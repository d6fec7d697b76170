// From one mismatch to the next without leaving the grid.
#include <QMdiArea>
#include <QToolTip>
#include <optional>

#include "checking/ui/frmCheckBreaks.h"
#include "common/ui/StationQString.h"
#include "shell/ui/frmMain.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/ui/frmSplit.h"

namespace logchecker {

namespace {

constexpr QPoint kNoteInWindow{24, 48};  // logical pixels, below the title and the headings

// Where the user is in the day, in seconds: at the break that was asked for where another one
// stands in for it, so that the way back does not end there.
float TimeLookedAt(const SplitLog& split) {
  if (split.gridLog.MissedTime()) return *split.gridLog.MissedTime();
  int32_t firstRow = 0;
  float seconds = 0;
  split.FindBeginningofBreak(split.gridLog.Row(), firstRow);
  split.GetBreakTimeByRow(firstRow, seconds);
  return seconds;
}

}  // namespace

// Without results the day is checked first. The focus stays where it is, and the results come to
// the front beside it, with the row that is gone to.
void frmMain::GoToMismatch(MismatchStep step) {
  QMdiSubWindow* const at = area_->activeSubWindow();
  if (!checkBreaks_) {
    OnCheckDay();
    if (at != nullptr) area_->setActiveSubWindow(at);
  }
  const auto* split = qobject_cast<frmSplit*>(at);
  const std::string problem = checkBreaks_->GoToMismatch(
      step, split == nullptr ? std::nullopt : std::optional(TimeLookedAt(*split)));
  if (!checkBreaks_->isMinimized()) checkBreaks_->raise();
  QWidget& shown = at == nullptr ? static_cast<QWidget&>(*checkBreaks_) : *at;
  if (problem.empty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(shown.mapToGlobal(kNoteInWindow), AsToolTip(ToQString(problem)), &shown);
  }
}

}  // namespace logchecker
