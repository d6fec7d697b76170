// The host's clock, and its language's names for days and months.
#pragma once

#include <string>

#include "platform/Clock.h"

namespace logchecker {

class PosixClock : public Clock {
 public:
  double Now() override;
  double UtcNow() override;
  std::string ShortDate(int32_t day) override;
  std::string LongDate(int32_t day) override;
  std::string MonthName(int32_t month, bool abbreviated) override;
  std::string WeekdayName(int32_t weekday, bool abbreviated) override;
};

}  // namespace logchecker
