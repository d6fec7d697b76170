// Day numbers.
#pragma once

#include <chrono>
#include <cstdint>

namespace logchecker {

// Day 36526 is 1 January 2000; day 0 is 30 December 1899.
inline constexpr int32_t kFirstDay = -657434;  // 1 January 100
inline constexpr int32_t kLastDay = 2958465;   // 31 December 9999

std::chrono::year_month_day DateOfDay(int32_t day);
int32_t DayOfDate(const std::chrono::year_month_day& date);

// Today by the platform's clock.
int32_t Today();

// A date as whole days and as seconds from that day's midnight.
struct DayAndSeconds {
  int32_t Days = 0;
  float Seconds = 0;
};

// `dateTime` is a date number with its time as the fraction; the seconds come out whole.
DayAndSeconds SplitDateTime(double dateTime);

}  // namespace logchecker
