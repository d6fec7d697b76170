// Small text routines. Positions count from 1.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace logchecker {

// Without the blanks (spaces, nothing else) at both ends.
inline std::string_view Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

// `count` characters of `text` from position `start`, as far as there are any.
inline std::string_view Mid(std::string_view text, size_t start,
                            size_t count = std::string_view::npos) {
  return start > text.size() ? std::string_view() : text.substr(start - 1, count);
}

// The text from a start position up to a delimiter, or to the end where there is none. A `start`
// below 1 is set to 1. With `skipBlanks` it begins at the first character from there on that is no
// blank; if there is none the result is empty. `position` gets the place of the delimiter, 0 when
// it was not found. With `trim` the result is trimmed.
std::string GetDelimitedField(std::string_view source, int32_t& start, std::string_view delimiter,
                              int32_t& position, bool trim, bool skipBlanks);

// True when every character belongs to the kind: 1 digits, 2 digits and letters, 3 letters, 4
// digits, letters and the blank, 5 digits and the blank. Letters are A to Z and a to z. An empty
// text and any other kind give true.
bool IsTextOfKind(std::string_view text, int32_t kind);

// `text` up to its first NUL, or up to its last one with `fromEnd`; whole if it holds none.
std::string TrimAtNull(std::string_view text, bool fromEnd);

// The full name of a month in the user's language; "" for a month outside 1 to 12.
std::string GetMonthName(int16_t month);

// True when the point lies in the square of `tolerance` around the centre, its edges included. The
// sums are rounded to single precision.
bool IsPointInTolerance(float x, float y, float centreX, float centreY, float tolerance);

}  // namespace logchecker
