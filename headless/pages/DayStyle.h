// What the page of days adds to the common style.
#pragma once

#include <string_view>

namespace logchecker {

// ASCII.
std::string_view DayStyle();

}  // namespace logchecker
