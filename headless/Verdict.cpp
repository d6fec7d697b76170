#include "headless/Verdict.h"

#include <algorithm>

namespace logchecker {

namespace {

bool Holds(const std::vector<WarningKind>& kinds, WarningKind kind) {
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

}  // namespace

bool DiffersWithoutMissingLogs(const DayReport& day, const BreakMismatch& mismatch) {
  if (HasNoTime(mismatch)) return true;
  std::vector<float> lengths;
  for (size_t i = 0; i < mismatch.Lengths.size(); ++i) {
    if (day.splits[i].adverts == 0) continue;
    if (!mismatch.Lengths[i].found) return true;
    lengths.push_back(mismatch.Lengths[i].seconds);
  }
  return !LengthsMatch(lengths);
}

namespace {

bool AnyMismatchCounts(const DayReport& day, bool missingLogsAccepted) {
  if (!missingLogsAccepted) return !day.mismatches.empty();
  return std::any_of(
      day.mismatches.begin(), day.mismatches.end(),
      [&](const BreakMismatch& mismatch) { return DiffersWithoutMissingLogs(day, mismatch); });
}

}  // namespace

int CodeOf(const DayReport& day, const std::vector<WarningKind>& accepted) {
  if (!day.trouble.empty()) return kTrouble;
  if (AnyMismatchCounts(day, Holds(accepted, WarningKind::kMissingLog))) return kToMend;
  const bool anyWarningCounts =
      std::any_of(day.warnings.begin(), day.warnings.end(), [&](const Warning& warning) {
        return warning.kind != WarningKind::kStation && !Holds(accepted, warning.kind);
      });
  return anyWarningCounts ? kToMend : kAllMatch;
}

int CodeOf(const std::vector<DayReport>& days, const std::vector<WarningKind>& accepted) {
  int code = kAllMatch;
  for (const DayReport& day : days) code = std::max(code, CodeOf(day, accepted));
  return code;
}

}  // namespace logchecker
