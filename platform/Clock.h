// Date, time of day, and how the system's language writes them.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// A date number counts days; day 36526 is 1 January 2000, and a fraction is the time of day.
class Clock {
 public:
  virtual ~Clock() = default;

  // The local date and time.
  virtual double Now() = 0;
  // The date and time in UTC.
  virtual double UtcNow() = 0;
  // Texts in the user's language, for a whole day number.
  virtual std::string ShortDate(int32_t day) = 0;
  virtual std::string LongDate(int32_t day) = 0;
  // `month` from 1 to 12, `weekday` from 1 (Sunday) to 7.
  virtual std::string MonthName(int32_t month, bool abbreviated) = 0;
  virtual std::string WeekdayName(int32_t weekday, bool abbreviated) = 0;
};

}  // namespace logchecker
