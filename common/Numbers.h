// Numbers in text, and rounding.
#pragma once

#include <cstdint>
#include <string_view>

namespace logchecker {

// The number at the start of a text: blanks anywhere in it are skipped, then a sign, digits, a
// point and an exponent are read as far as they go. 0 without a digit.
double Val(std::string_view text);

// The nearest whole number, halves to the even one.
double RoundHalfEven(double value);

// Rounded to a whole number; 0 when the type can't hold it.
int32_t ToInt32(double value);
int16_t ToInt16(double value);

// Rounded to a whole number, and the nearest one that the type holds where it is beyond.
int32_t ToNearestInt32(double value);

// The nearest value that a 16-bit integer holds: a setting out of its range stays out of every
// range that is checked later.
int16_t ClampToInt16(int32_t value);

}  // namespace logchecker
