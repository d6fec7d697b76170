// The desktop program.
#pragma once

namespace logchecker {

// Runs it to its end. The exit code: 0 after a day's work, 1 when it ended at its start for want of
// settings or of a store, 3 when a run-time error stopped it.
int RunDesktop(int argc, char** argv);

}  // namespace logchecker
