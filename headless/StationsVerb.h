// `logcheck stations`.
#pragma once

#include "headless/CommandLine.h"

namespace logchecker {

// Checks every station of the list in a process of its own, several at once, and writes what was
// found, in the list's order. Returns the greatest of their codes. Throws Trouble when the report
// can't be written.
int RunStations(const Options& options);

}  // namespace logchecker
