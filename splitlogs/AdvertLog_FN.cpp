#include "splitlogs/AdvertLog_FN.h"

#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr size_t kOldFormColumn = 6;
// An old line that reaches to here has its fields in places of their own. In a shorter one those
// that are added slide into the fields before them.
constexpr size_t kWholeOldLine = 47;

bool IsOldForm(std::string_view line) {
  return line.size() >= kOldFormColumn && line[kOldFormColumn - 1] == '|';
}

std::string_view Columns(std::string_view line, size_t first, size_t last) {
  return Mid(line, first, last - first + 1);
}

}  // namespace

std::string NormaliseLogLine(std::string_view line) {
  if (!IsOldForm(line)) return std::string(line);
  std::string current;
  current.reserve(line.size() + 8);
  current += Mid(line, 1, 5);
  current += ":00";
  current += Mid(line, 6, 6);
  current += "    ";
  current += Mid(line, 12, 36);
  current += ' ';
  current += Mid(line, 48);
  return current;
}

LogLine::LogLine(std::string_view line) : text_(line) {
  if (!IsOldForm(line)) return;
  hasOldColumns_ = line.size() >= kWholeOldLine;
  if (!hasOldColumns_) text_ = normalised_ = NormaliseLogLine(line);
}

float LogLine::Time() const {
  if (text_.empty()) return -1.0F;
  const double seconds = hasOldColumns_ ? 0 : Val(Columns(text_, 7, 8));
  return static_cast<float>(Val(Columns(text_, 1, 2)) * 3600 + Val(Columns(text_, 4, 5)) * 60 +
                            seconds);
}

std::string_view LogLine::Reference() const { return Mid(text_, hasOldColumns_ ? 52 : 60); }

std::string_view LogLine::Description() const {
  return hasOldColumns_ ? Columns(text_, 17, 46) : Columns(text_, 24, 53);
}

// The columns have room for no more digits than the number.
int32_t LogLine::Cart() const {
  const std::string_view cart = hasOldColumns_ ? Columns(text_, 12, 15) : Columns(text_, 15, 22);
  int32_t number = 0;
  for (const char c : cart) {
    if (c == ' ') continue;
    if (c < '0' || c > '9') return ToInt32(Val(cart));
    number = number * 10 + (c - '0');
  }
  return number;
}

std::string_view LogLine::TXChainColumns() const {
  return hasOldColumns_ ? Columns(text_, 7, 10) : Columns(text_, 10, 13);
}

std::string LogLine::TXChainCode() const { return ToUpper(Trim(TXChainColumns())); }

float GetLineTime(std::string_view line) { return LogLine(line).Time(); }

std::string GetLineReference(std::string_view line) {
  return std::string(LogLine(line).Reference());
}

std::string GetLineDescription(std::string_view line) {
  return std::string(LogLine(line).Description());
}

int32_t GetLineCart(std::string_view line) { return LogLine(line).Cart(); }

std::string GetLineTXChainCode(std::string_view line) { return LogLine(line).TXChainCode(); }

}  // namespace logchecker
