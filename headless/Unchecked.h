// What a report says where there was no check.
#pragma once

#include <string>
#include <vector>

#include "headless/CommandLine.h"
#include "headless/DayReport.h"

namespace logchecker {

// Every day that was asked for, with one reason why none could be checked.
std::vector<DayReport> UncheckedDays(const Options& options, const std::string& reason);

// Now, in UTC, as reports have it: 2027-01-15T14:03:21Z.
std::string CheckTime();

}  // namespace logchecker
