#include "headless/DayReport.h"

namespace logchecker {

const char* NameOf(WarningKind kind) {
  switch (kind) {
    case WarningKind::kSilent:
      return "silent";
    case WarningKind::kMidnight:
      return "midnight";
    case WarningKind::kPassedOver:
      return "passed-over";
    case WarningKind::kMissingLog:
      return "missing-log";
    default:
      return "station";
  }
}

bool HasNoTime(const BreakMismatch& mismatch) { return mismatch.Time > kLastSecondOfADay; }

}  // namespace logchecker
