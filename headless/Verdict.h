// What a report means to whoever started the check.
#pragma once

#include <vector>

#include "headless/DayReport.h"

namespace logchecker {

// The exit codes.
inline constexpr int kAllMatch = 0;  // every break was compared and matches, every advert has audio
inline constexpr int kToMend = 1;    // something is for a person to mend
inline constexpr int kTrouble = 2;   // it could not be checked

// Whether the break differs among the splits that have adverts that day, by the tolerance in force;
// otherwise it is there for a split without a log alone.
bool DiffersWithoutMissingLogs(const DayReport& day, const BreakMismatch& mismatch);

// The code of one day. What is `accepted` counts for nothing, though it is reported still; a
// mismatch that is there for a split without a log alone goes with the missing log.
int CodeOf(const DayReport& day, const std::vector<WarningKind>& accepted);

// The greatest of the days'.
int CodeOf(const std::vector<DayReport>& days, const std::vector<WarningKind>& accepted);

}  // namespace logchecker
