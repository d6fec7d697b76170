// The headless program.
#pragma once

#include <string>
#include <vector>

namespace logchecker {

inline constexpr int kAllMatch = 0;
inline constexpr int kSomethingDiffers = 1;
inline constexpr int kTrouble = 2;

// Runs logcheck with the arguments behind the program's name, as main got them, and returns its
// exit code. `check`: kAllMatch, kSomethingDiffers or kTrouble; the other verbs: 0 or kTrouble.
// Trouble always leaves one clear line on standard error.
int RunLogcheck(const std::vector<std::string>& arguments);

}  // namespace logchecker
