// The dated debug log. It is silent: its level stays 0 unless someone who traces a fault sets it.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// 0 off, -1 everything, above 0 the lines of that level and below.
extern int32_t gDebugLevel;
// Base name of the file; the program's own name stands in when it is empty.
extern std::string gDebugLogName;
// Indent depth of the next line, never negative.
extern int32_t gDebugIndent;

enum class IndentStep { kKeep = 0, kDeeperAfter = 1, kBackBefore = 2, kReset = 3 };

// Adds a line to the day's file in the root of drive C: the time, a blank, four blanks for each
// indent, the text. A `level` of -1 counts as 5. Failures are swallowed.
void WriteDebugLogIndented(const std::string& text, int32_t level, IndentStep indentStep);
void WriteDebugLog(const std::string& text, int32_t level);

}  // namespace logchecker
