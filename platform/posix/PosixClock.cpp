#include "platform/posix/PosixClock.h"

#include <clocale>
#include <ctime>

#include "platform/StationText.h"
#include "platform/posix/LocalTime.h"

namespace logchecker {

namespace {

constexpr int64_t kUnixEpochDay = 25569;
constexpr int64_t kSecondsADay = 86400;

// Formats in the user's language, whatever locale the process has set for itself.
std::string Format(const char* format, const tm& time) {
  static const locale_t language = [] {
    const locale_t user = newlocale(LC_ALL_MASK, "", nullptr);
    return user != nullptr ? user : newlocale(LC_ALL_MASK, "C", nullptr);
  }();
  char text[256];
  const size_t length = strftime_l(text, sizeof text, format, &time, language);
  std::string station;
  FromUtf8(std::string_view(text, length), &station);
  return station;
}

tm DayParts(int32_t day) {
  const time_t seconds = (day - kUnixEpochDay) * kSecondsADay;
  tm parts{};
  gmtime_r(&seconds, &parts);
  return parts;
}

}  // namespace

double LocalDateNumber(time_t time) {
  tm parts{};
  localtime_r(&time, &parts);
  const int64_t local = timegm(&parts);
  int64_t day = local / kSecondsADay;
  int64_t second = local % kSecondsADay;
  if (second < 0) {
    second += kSecondsADay;
    --day;
  }
  return static_cast<double>(day + kUnixEpochDay) +
         static_cast<double>(second) / static_cast<double>(kSecondsADay);
}

double PosixClock::Now() { return LocalDateNumber(time(nullptr)); }

double PosixClock::UtcNow() {
  const time_t seconds = time(nullptr);
  return static_cast<double>(kUnixEpochDay) +
         static_cast<double>(seconds) / static_cast<double>(kSecondsADay);
}

std::string PosixClock::ShortDate(int32_t day) { return Format("%x", DayParts(day)); }

std::string PosixClock::LongDate(int32_t day) { return Format("%A %d %B %Y", DayParts(day)); }

std::string PosixClock::MonthName(int32_t month, bool abbreviated) {
  tm parts{};
  parts.tm_year = 101;
  parts.tm_mon = month - 1;
  parts.tm_mday = 1;
  return Format(abbreviated ? "%b" : "%B", parts);
}

std::string PosixClock::WeekdayName(int32_t weekday, bool abbreviated) {
  tm parts{};
  parts.tm_wday = weekday - 1;
  return Format(abbreviated ? "%a" : "%A", parts);
}

}  // namespace logchecker
