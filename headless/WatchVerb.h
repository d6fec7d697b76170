// logcheck watch.
#pragma once

#include "headless/CommandLine.h"

namespace logchecker {

// Watches until the program is told to end, which it then does at once and with 0.
int RunWatch(const Options& options);

}  // namespace logchecker
