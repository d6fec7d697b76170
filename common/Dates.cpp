#include "common/Dates.h"

#include <cmath>

#include "common/Numbers.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

constexpr int32_t kUnixEpochDay = 25569;
constexpr double kSecondsADay = 86400;

}  // namespace

std::chrono::year_month_day DateOfDay(int32_t day) {
  return std::chrono::year_month_day{std::chrono::sys_days{std::chrono::days{day - kUnixEpochDay}}};
}

int32_t DayOfDate(const std::chrono::year_month_day& date) {
  return static_cast<int32_t>(std::chrono::sys_days{date}.time_since_epoch().count()) +
         kUnixEpochDay;
}

int32_t Today() { return SplitDateTime(Os().clock.Now()).Days; }

DayAndSeconds SplitDateTime(double dateTime) {
  const double day = std::floor(dateTime);
  return {ToInt32(day), static_cast<float>(RoundHalfEven((dateTime - day) * kSecondsADay))};
}

}  // namespace logchecker
