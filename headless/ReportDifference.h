// What is new in a report against the one before.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "headless/DayReport.h"

namespace logchecker {

enum class WatchEventKind {
  kDay,              // a day is watched from here on
  kDayOver,          // and no longer
  kNotChecked,       // a day can't be checked
  kTroubleOver,      // it can again
  kLog,              // a split's log arrived
  kLogGone,          // and is gone
  kMismatch,         // a break that does not match came
  kMismatchChanged,  // it still does not match, in another way
  kMismatchMended,   // it is there no longer
  kWarning,          // a warning came
  kWarningOver,      // and is there no longer
  kFolderGone,       // a folder can't be reached
  kFolderBack,       // it can again
  kOutput,           // the report's file can't be written
  kOutputOver,       // it can again
  kCommand,          // the command failed
  kCommandOver,      // it works again
};

// "day", "day-over", "trouble", "trouble-over", "log", "log-gone", "mismatch", "mismatch-changed",
// "mismatch-mended", "warning", "warning-over", "folder-gone", "folder-back", "output",
// "output-over", "command", "command-over".
const char* NameOf(WatchEventKind kind);

struct WatchEvent {
  WatchEventKind kind = WatchEventKind::kDay;
  int32_t day = 0;    // 0 where it concerns none alone
  int16_t split = 0;  // likewise
  std::string time;   // of a break, as the results show it
  WarningKind warning = WarningKind::kStation;
  std::string text;  // one line without the day, station text
};

// The days without the breaks that are there for a split without a log alone, which are as many as
// the day has and say what the log's own line says; those that `before` has stay, since nobody has
// mended them. For right behind the check, while its tolerance is in force.
std::vector<DayReport> WithoutRowsOfMissingLogs(const std::vector<DayReport>& before,
                                                std::vector<DayReport> days);

// The days in order; of each its trouble, its logs, its breaks, its warnings. A day that is in one
// of them alone is a day that is watched from now on, or no longer. A day with trouble is not
// compared: nobody knows what became of its breaks.
std::vector<WatchEvent> Difference(const std::vector<DayReport>& before,
                                   const std::vector<DayReport>& now);

// What the next report is to be compared with: the days of `now`, those with trouble with all else
// that was known of them before.
std::vector<DayReport> Known(const std::vector<DayReport>& before, std::vector<DayReport> now);

}  // namespace logchecker
