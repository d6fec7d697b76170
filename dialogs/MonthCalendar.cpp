#include "dialogs/MonthCalendar.h"

#include <chrono>

#include "common/Dates.h"

namespace logchecker {

int16_t DaysOfMonth(int16_t month, int16_t year) {
  switch (month) {
    case 4:
    case 6:
    case 9:
    case 11:
      return 30;
    case 2:
      return year % 4 == 0 ? 29 : 28;
    default:
      return 31;
  }
}

int16_t OffsetOfFirstDay(int16_t month, int16_t year) {
  const std::chrono::sys_days first = std::chrono::year(year) / month / 1;
  const unsigned sundayIs0 = std::chrono::weekday(first).c_encoding();
  return static_cast<int16_t>(static_cast<int>(sundayIs0) - 1);
}

int32_t DayNumberOfChoice(int16_t day, int16_t month, int16_t year) {
  using std::chrono::year_month_day;
  const std::chrono::sys_days start = std::chrono::year(year - 1) / 11 / 30;
  const year_month_day inDecember(start + std::chrono::days(day));
  year_month_day wanted = inDecember + std::chrono::months(month);
  if (!wanted.ok()) wanted = wanted.year() / wanted.month() / std::chrono::last;
  return DayOfDate(wanted);
}

}  // namespace logchecker
