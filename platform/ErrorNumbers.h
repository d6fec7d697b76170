// The error numbers by which every platform call reports. 0 is success; the others are the numbers
// that the runtime of the platform has always used, so that messages and ".ERR" lines stay
// familiar.
#pragma once

#include <cstdint>

namespace logchecker {

inline constexpr int32_t kNoError = 0;
inline constexpr int32_t kInvalidCall = 5;
inline constexpr int32_t kOverflow = 6;
inline constexpr int32_t kOutOfMemory = 7;
inline constexpr int32_t kSubscriptOutOfRange = 9;
inline constexpr int32_t kDivisionByZero = 11;
inline constexpr int32_t kBadFileNumber = 52;
inline constexpr int32_t kFileNotFound = 53;
inline constexpr int32_t kDeviceIoError = 57;
inline constexpr int32_t kDiskFull = 61;
inline constexpr int32_t kInputPastEnd = 62;
inline constexpr int32_t kTooManyFiles = 67;
inline constexpr int32_t kPermissionDenied = 70;
inline constexpr int32_t kPathFileAccess = 75;
inline constexpr int32_t kPathNotFound = 76;
inline constexpr int32_t kPrinterError = 482;
inline constexpr int32_t kCancelled = 32755;
inline constexpr int32_t kInvalidGridRow = 30009;

}  // namespace logchecker
