// Times of day and lengths as text, and back.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace logchecker {

// `seconds` as hours, minutes, seconds and hundredths. The mask is read by its decimal digits.
//   units     0 mm:ss.hh   1 hh:mm:ss.hh   2 hh:mm:ss   4 hh:mm   any other mm:ss
//   tens      with units 2 or more: 0 rounds to the nearest second (halves to the even one), 2
//   rounds
//             up, any other cuts the fraction off
//   hundreds  below 100 every field has two digits; above 100 leading zeros are dropped and a field
//             without a value is two blanks; from 200 on a blank hours or seconds field goes too
// A value below 0, above 86400 or that is no number shows "--" in every field. The hours are never
// wrapped: 86400 shows as 24. Hundredths don't carry: 59.999 with mask 0 is "00:59.00".
std::string FormatTimeDisplay(double seconds, int32_t mask);

// FormatTimeDisplay of a length, but "--:--" for one that is no finite number.
std::string FormatLengthDisplay(float seconds, int32_t mask);

// What either of them shows, without an allocation.
class TimeDisplay {
 public:
  static TimeDisplay OfTime(double seconds, int32_t mask);
  static TimeDisplay OfLength(float seconds, int32_t mask);

  // It is a text.  NOLINTNEXTLINE(google-explicit-constructor)
  operator std::string_view() const { return {text_.data(), size_}; }

 private:
  std::array<char, 15> text_;
  uint8_t size_ = 0;
};

// The seconds that a text of fixed layout stands for: two-character fields at positions 1, 4, 7 and
// 10, by the mask's units digit as above (3 alone for mm:ss). Rounded to single precision. A field
// that does not begin with a digit reads as 0.
double ParseTimeDisplay(std::string_view text, int32_t mask);

// What stands for a length or a time that can't be shown.
inline constexpr char kNoTimeText[] = "--:--";

// Masks in use.
inline constexpr int32_t kMaskHoursMinutesSeconds = 2;
inline constexpr int32_t kMaskHoursMinutes = 4;

// The mask of a length with (201) or without (202) hundredths.
constexpr int32_t LengthMask(bool hundredths) { return hundredths ? 201 : 202; }

}  // namespace logchecker
