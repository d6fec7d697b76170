// The command that gets the reports of a watch.
#pragma once

#include <string>

#include "headless/Reports.h"

namespace logchecker {

// How long the command may take for one report.
inline constexpr int32_t kCommandSeconds = 60;

// Runs `command` through the system's shell and waits for it. It reads `bytes`, the report, from
// standard input, and has LOGCHECK_CODE (the exit code of a check that finds the same),
// LOGCHECK_STATION and LOGCHECK_DAYS (each day as YYYY-MM-DD, with blanks between them) in its
// environment. "" when it ends with 0, otherwise why not in one line: with the first line that it
// wrote on standard error. What it prints is dropped.
std::string RunReportCommand(const std::string& command, const CheckReport& report,
                             const std::string& bytes);

}  // namespace logchecker
