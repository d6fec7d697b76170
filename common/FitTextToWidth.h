// Cutting a text to a width.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace logchecker {

// The longest head of `text` that takes no more than `maxWidth`, grown character by character:
// `measure` gives the width of a text in the same unit. The cut is hard, without an ellipsis.
template <typename Measure>
std::string FitTextToWidth(Measure&& measure, std::string_view text, int32_t maxWidth) {
  size_t length = 0;
  while (length < text.size() && !(measure(text.substr(0, length + 1)) > maxWidth)) ++length;
  return std::string(text.substr(0, length));
}

}  // namespace logchecker
