// Local times as date numbers.
#pragma once

#include <ctime>

namespace logchecker {

// Days since 30 December 1899, local time; the fraction is the time of day, to the second.
double LocalDateNumber(time_t time);

}  // namespace logchecker
