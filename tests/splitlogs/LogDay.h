#pragma once

#include <cstdint>

namespace logchecker {

inline constexpr int32_t kDay =
    46402;  // Friday, 15 January 2027: the day of the logs in these tests

}  // namespace logchecker
