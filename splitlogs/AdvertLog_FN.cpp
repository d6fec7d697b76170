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

LogLine::LogLine(std::string_view line) {
  const bool isOld = IsOldForm(line);
  if (isOld && line.size() >= kWholeOldLine) {
    seconds_ = "00";
    chain_ = Columns(line, 7, 10);
    cart_ = Columns(line, 12, 15);
    description_ = Columns(line, 17, 46);
    reference_ = Mid(line, 52);
  } else {
    if (isOld) line = normalised_ = NormaliseLogLine(line);
    seconds_ = Columns(line, 7, 8);
    chain_ = Columns(line, 10, 13);
    cart_ = Columns(line, 15, 22);
    description_ = Columns(line, 24, 53);
    reference_ = Mid(line, 60);
  }
  hoursAndMinutes_ = Columns(line, 1, 5);
}

// Only the empty line has nothing in its first columns.
float LogLine::Time() const {
  if (hoursAndMinutes_.empty()) return -1.0F;
  return static_cast<float>(Val(Columns(hoursAndMinutes_, 1, 2)) * 3600 +
                            Val(Columns(hoursAndMinutes_, 4, 5)) * 60 + Val(seconds_));
}

// The columns have room for no more digits than the number.
int32_t LogLine::Cart() const {
  int32_t number = 0;
  for (const char c : cart_) {
    if (c == ' ') continue;
    if (c < '0' || c > '9') return ToInt32(Val(cart_));
    number = number * 10 + (c - '0');
  }
  return number;
}

std::string LogLine::TXChainCode() const { return ToUpper(Trim(chain_)); }

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
