#include "common/TimeText.h"

#include <algorithm>
#include <cmath>

#include "common/Numbers.h"
#include "common/TextHelpers.h"

namespace logchecker {

namespace {

constexpr double kLastSecond = 86400;

// One field of the display, two characters wide. No value that passes the range test has more
// digits: the hours end at 24.
struct Field {
  char text[2] = {' ', ' '};

  bool IsBlank() const { return text[0] == ' ' && text[1] == ' '; }
  char* AddTo(char* end) const {
    end[0] = text[0];
    end[1] = text[1];
    return end + 2;
  }

  // Two digits with a leading zero.
  void Pad(int32_t value) {
    text[0] = static_cast<char>('0' + value / 10);
    text[1] = static_cast<char>('0' + value % 10);
  }
  // The bare number, nothing for 0.
  void Bare(int32_t value) {
    if (value >= 10) text[0] = static_cast<char>('0' + value / 10);
    if (value > 0) text[1] = static_cast<char>('0' + value % 10);
  }
  void Set(int32_t value, bool bare) { bare ? Bare(value) : Pad(value); }
};

struct Fields {
  Field hours, minutes, seconds, hundredths;
};

double RoundByTens(double seconds, int32_t mask) {
  if (mask % 10 < 2) return seconds;
  const int32_t tens = mask % 100 / 10;
  if (tens == 0) return RoundHalfEven(seconds);
  if (tens == 2) return std::ceil(seconds);
  return seconds;
}

Fields FillFields(double seconds, int32_t mask) {
  Fields fields;
  if (!(seconds >= 0 && seconds <= kLastSecond)) {
    const Field dashes{{'-', '-'}};
    return {dashes, dashes, dashes, dashes};
  }
  if (mask == 100) return fields;  // this mask alone leaves every field without a value
  seconds = RoundByTens(seconds, mask);
  const auto whole = static_cast<int32_t>(seconds);
  const bool dropZeros = mask > 100;
  if (mask % 10 < 2) {
    const auto hundredths = static_cast<int32_t>(RoundHalfEven(seconds * 100)) % 100;
    fields.hundredths.Set(hundredths, dropZeros && seconds < 1);
  }
  fields.seconds.Set(whole % 60, dropZeros && whole < 60);
  fields.minutes.Set(whole / 60 % 60, dropZeros && whole < 3600);
  fields.hours.Set(whole / 3600, dropZeros);
  return fields;
}

}  // namespace

TimeDisplay TimeDisplay::OfTime(double seconds, int32_t mask) {
  const Fields fields = FillFields(seconds, mask);
  const int32_t units = mask % 10;
  const bool keepsBlanks = mask < 200;
  TimeDisplay result;
  char* const begin = result.text_.data();
  char* end = begin;
  if ((units == 1 || units == 2 || units == 4) && (keepsBlanks || !fields.hours.IsBlank())) {
    end = fields.hours.AddTo(end);
    *end++ = ':';
  }
  end = fields.minutes.AddTo(end);
  if (units != 4 && (keepsBlanks || !fields.seconds.IsBlank())) {
    *end++ = ':';
    end = fields.seconds.AddTo(end);
  }
  if (units == 0 || units == 1) {
    *end++ = '.';
    end = fields.hundredths.AddTo(end);
  }
  result.size_ = static_cast<uint8_t>(end - begin);
  return result;
}

TimeDisplay TimeDisplay::OfLength(float seconds, int32_t mask) {
  if (std::isfinite(seconds)) return OfTime(seconds, mask);
  TimeDisplay none;
  none.size_ = sizeof kNoTimeText - 1;
  std::copy_n(kNoTimeText, none.size_, none.text_.data());
  return none;
}

std::string FormatTimeDisplay(double seconds, int32_t mask) {
  return std::string(std::string_view(TimeDisplay::OfTime(seconds, mask)));
}

std::string FormatLengthDisplay(float seconds, int32_t mask) {
  return std::string(std::string_view(TimeDisplay::OfLength(seconds, mask)));
}

namespace {

double FieldAt(std::string_view text, size_t position) {
  const std::string_view piece = Mid(text, position, 2);
  const bool beginsWithDigit = !piece.empty() && piece[0] >= '0' && piece[0] <= '9';
  return beginsWithDigit ? Val(piece) : 0;
}

}  // namespace

double ParseTimeDisplay(std::string_view text, int32_t mask) {
  text = Trim(text);
  const double first = FieldAt(text, 1);
  const double second = FieldAt(text, 4);
  const double third = FieldAt(text, 7);
  const double fourth = FieldAt(text, 10);
  double seconds = 0;
  switch (mask % 10) {
    case 0:
      seconds = first * 60 + second + third / 100;
      break;
    case 1:
      seconds = first * 3600 + second * 60 + third + fourth / 100;
      break;
    case 2:
      seconds = first * 3600 + second * 60 + third;
      break;
    case 3:
      seconds = first * 60 + second;
      break;
    case 4:
      seconds = first * 3600 + second * 60;
      break;
    default:
      break;
  }
  return static_cast<float>(seconds);
}

}  // namespace logchecker
