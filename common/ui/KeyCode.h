// Keys by the numbers that the system's windows have always used.
#pragma once

#include <cstdint>

class QKeyEvent;

namespace logchecker {

// 0 for a key that has no such number.
int32_t KeyCodeOf(const QKeyEvent& event);
// 1 for Shift, 2 for Control, 4 for Alt, added up.
int32_t ShiftStateOf(const QKeyEvent& event);

}  // namespace logchecker
