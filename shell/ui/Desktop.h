// The desktop program.
#pragma once

#include "shell/ui/Trial.h"

namespace logchecker {

// Runs it to its end. The exit code: 0 after a day's work, 1 when it ended at its start for want of
// settings, of a store or of room for the made-up station, 3 when a run-time error stopped it.
// With --try among its arguments it runs on the station that `write` makes up.
int RunDesktop(int argc, char** argv, const WriteMadeUpStation& write);

}  // namespace logchecker
