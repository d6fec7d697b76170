#include "common/Numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace logchecker {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The characters of the number at the start of a text, one by one, with the blanks between them
// passed over.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) { SkipBlanks(); }

  char Peek() const { return text_.empty() ? '\0' : text_.front(); }
  void Next() {
    text_.remove_prefix(1);
    SkipBlanks();
  }

 private:
  void SkipBlanks() {
    while (!text_.empty() && text_.front() == ' ') text_.remove_prefix(1);
  }

  std::string_view text_;
};

// Moves the digits at the reader into `number` as far as there is room; true if there was one.
struct DigitRun {
  char* next;
  char* end;

  void Add(char c) {
    if (next < end) *next++ = c;
  }
  bool Take(Reader& reader) {
    bool any = false;
    for (; IsDigit(reader.Peek()); reader.Next()) {
      Add(reader.Peek());
      any = true;
    }
    return any;
  }
};

// Most numbers are a few digits between blanks, and are exact without any conversion. False for any
// other text.
bool ReadPlainNumber(std::string_view text, double* value) {
  constexpr int kMostDigits = 15;
  int64_t number = 0;
  int digits = 0;
  for (const char c : text) {
    if (c == ' ') continue;
    if (!IsDigit(c) || ++digits > kMostDigits) return false;
    number = number * 10 + (c - '0');
  }
  *value = static_cast<double>(number);
  return true;
}

}  // namespace

double Val(std::string_view text) {
  double plain = 0;
  if (ReadPlainNumber(text, &plain)) return plain;
  // Longer numbers than this are cut: what is left is far beyond the precision of the result.
  char number[512];
  DigitRun digits{number, number + sizeof number};
  Reader reader(text);
  if (reader.Peek() == '-') digits.Add('-');
  if (reader.Peek() == '-' || reader.Peek() == '+') reader.Next();
  bool any = digits.Take(reader);
  if (reader.Peek() == '.') {
    reader.Next();
    digits.Add('.');
    any = digits.Take(reader) || any;
  }
  if (!any) return 0;
  bool towardsZero = false;
  if (reader.Peek() == 'E' || reader.Peek() == 'e') {
    char* const mark = digits.next;
    reader.Next();
    digits.Add('e');
    towardsZero = reader.Peek() == '-';
    if (towardsZero) digits.Add('-');
    if (towardsZero || reader.Peek() == '+') reader.Next();
    if (!digits.Take(reader)) digits.next = mark;
  }
  double value = 0;
  const auto result = std::from_chars(number, digits.next, value);
  if (result.ec == std::errc::result_out_of_range && !towardsZero) {
    return std::numeric_limits<double>::infinity();
  }
  return value;
}

// Added to a smaller number, 2^52 leaves no room for a fraction, and the addition itself rounds
// halves to even.
double RoundHalfEven(double value) {
  constexpr double kNoFractionFrom = 0x1p52;
  if (!(std::fabs(value) < kNoFractionFrom)) return value;
  const double shift = std::copysign(kNoFractionFrom, value);
  return (value + shift) - shift;
}

namespace {

template <typename Integer>
Integer RoundInto(double value) {
  const double rounded = RoundHalfEven(value);
  const bool fits = rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
                    rounded <= static_cast<double>(std::numeric_limits<Integer>::max());
  return fits ? static_cast<Integer>(rounded) : Integer{0};
}

}  // namespace

int32_t ToInt32(double value) { return RoundInto<int32_t>(value); }

int16_t ToInt16(double value) { return RoundInto<int16_t>(value); }

int32_t ToNearestInt32(double value) {
  constexpr double kLeast = std::numeric_limits<int32_t>::min();
  constexpr double kMost = std::numeric_limits<int32_t>::max();
  return ToInt32(value < kLeast ? kLeast : (value > kMost ? kMost : value));
}

int16_t ClampToInt16(int32_t value) {
  constexpr int32_t kLeast = std::numeric_limits<int16_t>::min();
  constexpr int32_t kMost = std::numeric_limits<int16_t>::max();
  return static_cast<int16_t>(value < kLeast ? kLeast : (value > kMost ? kMost : value));
}

}  // namespace logchecker
