#include "splitlogs/AdvertLog_FN.h"

#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr size_t kOldFormColumn = 6;
constexpr size_t kToTheEnd = std::string_view::npos;

bool IsOldForm(std::string_view line) { return Mid(line, kOldFormColumn, 1) == "|"; }

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
  normalised_ = NormaliseLogLine(line);
  text_ = normalised_;
}

std::string_view LogLine::Columns(size_t first, size_t last) const {
  return Mid(text_, first, last == kToTheEnd ? kToTheEnd : last - first + 1);
}

float LogLine::Time() const {
  if (text_.empty()) return -1.0F;
  return static_cast<float>(Val(Columns(1, 2)) * 3600 + Val(Columns(4, 5)) * 60 +
                            Val(Columns(7, 8)));
}

std::string_view LogLine::Reference() const { return Columns(60, kToTheEnd); }

std::string_view LogLine::Description() const { return Columns(24, 53); }

int32_t LogLine::Cart() const { return ToInt32(Val(Columns(15, 22))); }

std::string LogLine::TXChainCode() const { return ToUpper(Trim(Columns(10, 13))); }

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
