// The codes by which keys are known to the windows of the store.
#pragma once

#include <cstdint>

namespace logchecker {

inline constexpr int32_t kKeyBackspace = 8;
inline constexpr int32_t kKeyTab = 9;
inline constexpr int32_t kKeyEscape = 27;
inline constexpr int32_t kKeySpace = 32;
inline constexpr int32_t kKeyPageUp = 33;
inline constexpr int32_t kKeyPageDown = 34;
inline constexpr int32_t kKeyUp = 38;
inline constexpr int32_t kKeyDown = 40;
inline constexpr int32_t kKeyJ = 74;
inline constexpr int32_t kKeyQ = 81;
inline constexpr int32_t kKeyF1 = 112;
inline constexpr int32_t kKeyF12 = 123;

}  // namespace logchecker
