#include "common/TextHelpers.h"

#include <algorithm>

#include "platform/Platform.h"

namespace logchecker {

std::string GetDelimitedField(std::string_view source, int32_t& start, std::string_view delimiter,
                              int32_t& position, bool trim, bool skipBlanks) {
  position = 0;
  if (start < 1) start = 1;
  auto working = static_cast<size_t>(start) - 1;
  if (skipBlanks) working = source.find_first_not_of(' ', working);
  if (working >= source.size()) return "";
  const size_t found = source.find(delimiter, working);
  if (found != std::string_view::npos) position = static_cast<int32_t>(found) + 1;
  std::string_view field = source.substr(
      working, found == std::string_view::npos ? std::string_view::npos : found - working);
  if (trim) field = Trim(field);
  return std::string(field);
}

bool IsTextOfKind(std::string_view text, int32_t kind) {
  if (kind < 1 || kind > 5) return true;
  return std::all_of(text.begin(), text.end(), [kind](char c) {
    if (c >= '0' && c <= '9') return kind != 3;
    if ((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')) return kind >= 2 && kind <= 4;
    return c == ' ' && kind >= 4;
  });
}

std::string TrimAtNull(std::string_view text, bool fromEnd) {
  return std::string(text.substr(0, fromEnd ? text.rfind('\0') : text.find('\0')));
}

std::string GetMonthName(int16_t month) {
  return month < 1 || month > 12 ? "" : Os().clock.MonthName(month, false);
}

bool IsPointInTolerance(float x, float y, float centreX, float centreY, float tolerance) {
  const float left = centreX - tolerance;
  const float right = centreX + tolerance;
  const float low = centreY - tolerance;
  const float high = centreY + tolerance;
  return x >= left && x <= right && y >= low && y <= high;
}

}  // namespace logchecker
