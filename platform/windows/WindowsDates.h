// Date numbers (see Clock.h) from and to the system's broken-down time.
#pragma once

#include <cstdint>

#include "platform/windows/WindowsApi.h"

namespace logchecker {

// To the whole second.
double DateNumberOf(const SYSTEMTIME& time);

// Midnight of a whole day number.
SYSTEMTIME SystemTimeOf(int32_t day);

}  // namespace logchecker
