#include "platform/windows/WindowsDates.h"

#include <chrono>

namespace logchecker {

namespace {

constexpr std::chrono::sys_days kDayZero{std::chrono::year{1899} / 12 / 30};
constexpr double kSecondsPerDay = 86400;

}  // namespace

double DateNumberOf(const SYSTEMTIME& time) {
  const std::chrono::sys_days date{std::chrono::year{time.wYear} / time.wMonth / time.wDay};
  const int seconds = time.wHour * 3600 + time.wMinute * 60 + time.wSecond;
  return static_cast<double>((date - kDayZero).count()) + seconds / kSecondsPerDay;
}

SYSTEMTIME SystemTimeOf(int32_t day) {
  const std::chrono::sys_days days = kDayZero + std::chrono::days{day};
  const std::chrono::year_month_day date{days};
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(static_cast<int>(date.year()));
  time.wMonth = static_cast<WORD>(static_cast<unsigned>(date.month()));
  time.wDay = static_cast<WORD>(static_cast<unsigned>(date.day()));
  time.wDayOfWeek = static_cast<WORD>(std::chrono::weekday{days}.c_encoding());
  return time;
}

}  // namespace logchecker
