// logcheck board.
#pragma once

#include "headless/CommandLine.h"

namespace logchecker {

// Reads the reports, writes the page, and returns the exit code: the greatest of the days' that it
// shows, and kTrouble where a report could not be read or a day is too old to go by. Throws Trouble
// when the page can't be written.
int RunBoard(const Options& options);

}  // namespace logchecker
