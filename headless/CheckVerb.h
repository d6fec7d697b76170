// logcheck check.
#pragma once

#include <string>

#include "headless/CommandLine.h"
#include "headless/Reports.h"

namespace logchecker {

// Checks the days that the options ask for, and says on standard error what is not to be trusted.
// What keeps a day from being checked stands in the report too.
CheckReport CheckStation(Options options);

// The report as a file of the format that was asked for.
std::string ReportInFormat(const Options& options, const CheckReport& report);

// Warns of a file that is to be replaced where the name could stand for two.
void WarnOfLookalike(const Options& options);

// Checks the days, writes the report, and returns the exit code. What keeps a day from being
// checked stands in the report too, so that none of yesterday's is taken for it. Throws Trouble
// when the report can't be written.
int RunCheck(const Options& options);

}  // namespace logchecker
