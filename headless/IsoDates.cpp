#include "headless/IsoDates.h"

#include <charconv>
#include <chrono>

#include "common/Dates.h"

namespace logchecker {

namespace {

constexpr size_t kDateLength = 10;  // of YYYY-MM-DD

// Two digits that mean less than `limit`.
std::optional<int32_t> ReadPair(std::string_view text, int32_t limit) {
  const std::optional<int32_t> number = ReadNumber(text);
  return number && *number >= 0 && *number < limit ? number : std::nullopt;
}

}  // namespace

std::optional<int32_t> ReadNumber(std::string_view text) {
  int32_t number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = result.ec == std::errc() && result.ptr == text.data() + text.size();
  return !text.empty() && whole ? std::optional(number) : std::nullopt;
}

std::optional<int32_t> ReadIsoDate(std::string_view text) {
  if (text.size() != kDateLength || text[4] != '-' || text[7] != '-') return std::nullopt;
  const std::optional<int32_t> year = ReadNumber(text.substr(0, 4));
  const std::optional<int32_t> month = ReadPair(text.substr(5, 2), 13);
  const std::optional<int32_t> day = ReadPair(text.substr(8), 32);
  if (!year || !month || !day) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year{*year},
                                         std::chrono::month{static_cast<unsigned>(*month)},
                                         std::chrono::day{static_cast<unsigned>(*day)}};
  if (!date.ok()) return std::nullopt;
  const int32_t number = DayOfDate(date);
  return number < kFirstDay ? std::nullopt : std::optional(number);
}

std::optional<double> ReadIsoTime(std::string_view text) {
  constexpr size_t kTimeLength = 20;
  constexpr double kSecondsOfADay = 86400;
  if (text.size() != kTimeLength || text[10] != 'T' || text[13] != ':' || text[16] != ':' ||
      text[19] != 'Z') {
    return std::nullopt;
  }
  const std::optional<int32_t> day = ReadIsoDate(text.substr(0, kDateLength));
  const std::optional<int32_t> hours = ReadPair(text.substr(11, 2), 24);
  const std::optional<int32_t> minutes = ReadPair(text.substr(14, 2), 60);
  const std::optional<int32_t> seconds = ReadPair(text.substr(17, 2), 60);
  if (!day || !hours || !minutes || !seconds) return std::nullopt;
  const double part = ((*hours * 60 + *minutes) * 60 + *seconds) / kSecondsOfADay;
  // In a date number the fraction is the time of day whichever side of 0 the day lies on.
  return *day < 0 ? *day - part : *day + part;
}

}  // namespace logchecker
