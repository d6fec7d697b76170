#include "common/TimeText.h"

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
  void AddTo(TimeDisplay& result) const {
    result.Add(text[0]);
    result.Add(text[1]);
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
  const auto hundredths = static_cast<int32_t>(RoundHalfEven(seconds * 100)) % 100;
  const bool dropZeros = mask > 100;
  fields.hundredths.Set(hundredths, dropZeros && seconds < 1);
  fields.seconds.Set(whole % 60, dropZeros && seconds < 60);
  fields.minutes.Set(whole / 60 % 60, dropZeros && seconds < 3600);
  fields.hours.Set(whole / 3600 % 3600, dropZeros);
  return fields;
}

}  // namespace

TimeDisplay TimeDisplayOf(double seconds, int32_t mask) {
  const Fields fields = FillFields(seconds, mask);
  const int32_t units = mask % 10;
  const bool keepsBlanks = mask < 200;
  TimeDisplay result;
  if ((units == 1 || units == 2 || units == 4) && (keepsBlanks || !fields.hours.IsBlank())) {
    fields.hours.AddTo(result);
    result.Add(':');
  }
  fields.minutes.AddTo(result);
  if (units != 4 && (keepsBlanks || !fields.seconds.IsBlank())) {
    result.Add(':');
    fields.seconds.AddTo(result);
  }
  if (units == 0 || units == 1) {
    result.Add('.');
    fields.hundredths.AddTo(result);
  }
  return result;
}

TimeDisplay LengthDisplayOf(float seconds, int32_t mask) {
  if (std::isfinite(seconds)) return TimeDisplayOf(seconds, mask);
  TimeDisplay none;
  for (const char c : std::string_view(kNoTimeText)) none.Add(c);
  return none;
}

std::string FormatTimeDisplay(double seconds, int32_t mask) {
  return std::string(std::string_view(TimeDisplayOf(seconds, mask)));
}

std::string FormatLengthDisplay(float seconds, int32_t mask) {
  return std::string(std::string_view(LengthDisplayOf(seconds, mask)));
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
