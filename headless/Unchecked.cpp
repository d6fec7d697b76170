#include "headless/Unchecked.h"

#include <utility>

#include "common/DatePicture.h"
#include "headless/Station.h"
#include "platform/Platform.h"

namespace logchecker {

std::vector<DayReport> UncheckedDays(const Options& options, const std::string& reason) {
  std::vector<DayReport> days;
  for (int32_t i = 0; i < options.days; ++i) {
    DayReport day;
    day.day = FirstDay(options) + i;
    day.trouble = reason;
    days.push_back(std::move(day));
  }
  return days;
}

std::string CheckTime() {
  return FormatDate(Os().clock.UtcNow(), "yyyy-mm-dd\\Thh:nn:ss\\Z").value_or("");
}

}  // namespace logchecker
