// Dates as programs write them.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace logchecker {

// A whole number in decimal digits, with "-" before one below 0 and nothing else around it.
std::optional<int32_t> ReadNumber(std::string_view text);

// YYYY-MM-DD as a day number; nothing for any other text and for a day before the year 100.
std::optional<int32_t> ReadIsoDate(std::string_view text);

// YYYY-MM-DDTHH:MM:SSZ as a date number (see platform/Clock.h), in UTC as it stands.
std::optional<double> ReadIsoTime(std::string_view text);

}  // namespace logchecker
