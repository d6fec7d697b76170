#include "splitlogs/AdvertLog_FN.h"

#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr size_t kOldFormColumn = 6;
constexpr size_t kToTheEnd = std::string_view::npos;

bool IsOldForm(std::string_view line) { return Mid(line, kOldFormColumn, 1) == "|"; }

// A line in the current form, without a copy where it already has it.
class NormalisedLine {
 public:
  explicit NormalisedLine(std::string_view line) : text_(line) {
    if (!IsOldForm(line)) return;
    storage_ = NormaliseLogLine(line);
    text_ = storage_;
  }
  NormalisedLine(const NormalisedLine&) = delete;
  NormalisedLine& operator=(const NormalisedLine&) = delete;

  std::string_view Columns(size_t first, size_t last) const {
    return Mid(text_, first, last == kToTheEnd ? kToTheEnd : last - first + 1);
  }

 private:
  std::string storage_;
  std::string_view text_;
};

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

float GetLineTime(std::string_view line) {
  if (line.empty()) return -1.0F;
  const NormalisedLine current(line);
  return static_cast<float>(Val(current.Columns(1, 2)) * 3600 + Val(current.Columns(4, 5)) * 60 +
                            Val(current.Columns(7, 8)));
}

std::string GetLineReference(std::string_view line) {
  return std::string(NormalisedLine(line).Columns(60, kToTheEnd));
}

std::string GetLineDescription(std::string_view line) {
  return std::string(NormalisedLine(line).Columns(24, 53));
}

int32_t GetLineCart(std::string_view line) {
  return ToInt32(Val(NormalisedLine(line).Columns(15, 22)));
}

std::string GetLineTXChainCode(std::string_view line) {
  return ToUpper(Trim(NormalisedLine(line).Columns(10, 13)));
}

}  // namespace logchecker
