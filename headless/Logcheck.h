// The headless program.
#pragma once

#include <string>
#include <vector>

namespace logchecker {

// Runs logcheck with the arguments behind the program's name, as main got them, and returns its
// exit code. See Verdict.h for `check`; the other verbs: 0 or kTrouble.
// Trouble always leaves one clear line on standard error.
int RunLogcheck(const std::vector<std::string>& arguments);

}  // namespace logchecker
