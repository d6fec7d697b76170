// What a board adds to the style of all pages.
#pragma once

#include <string_view>

namespace logchecker {

std::string_view BoardStyle();

}  // namespace logchecker
