// A month on a calendar of seven columns, Sunday first.
#pragma once

#include <cstdint>

namespace logchecker {

// The labels of the calendar run along its rows from 0; the latest first day and 31 days reach 36.
inline constexpr int16_t kCalendarLabels = 37;
inline constexpr int16_t kDaysInWeek = 7;

inline constexpr int16_t kFirstCalendarYear = 1980;
inline constexpr int16_t kLastCalendarYear = 2999;

// `month` from 1 to 12. Every fourth year has 29 days in February: the century rule is not applied.
int16_t DaysOfMonth(int16_t month, int16_t year);

// Day d of the month stands in the label with this number plus d; -1 for a month that begins on a
// Sunday, up to 5 for Saturday.
int16_t OffsetOfFirstDay(int16_t month, int16_t year);

// The day number of a choice: as many days and months behind 30 November of the year before. So the
// 29th of a February that has none is its 28th.
int32_t DayNumberOfChoice(int16_t day, int16_t month, int16_t year);

}  // namespace logchecker
