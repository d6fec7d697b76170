// What all pages look like.
#pragma once

#include <string_view>

namespace logchecker {

// Colours for light and dark, text, tables, badges, boxes that scroll, and paper. Colours are
// variables, and each pair of text and ground has a contrast of at least 4.5 to 1. ASCII.
std::string_view CommonStyle();

}  // namespace logchecker
