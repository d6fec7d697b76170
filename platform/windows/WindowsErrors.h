// From the system's error codes to the numbers by which platform calls report.
#pragma once

#include <cstdint>

namespace logchecker {

// `code` as GetLastError gives it.
int32_t ErrorNumberOf(uint32_t code);

// The number for the call that has just failed.
int32_t LastErrorNumber();

}  // namespace logchecker
