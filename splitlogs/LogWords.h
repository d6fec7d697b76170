// What a split shows, in words for people.
#pragma once

#include <cstdint>
#include <string>

#include "splitlogs/SplitLog.h"

namespace logchecker {

// A day in the long form, such as "Friday 15 January 2027".
std::string DayInWords(int32_t day);

// The split's name, the path of its log, the day that it is of, and how many breaks and adverts it
// has, each on a line. Of a log of another day than the one that was loaded, and of a missing one,
// it says so.
std::string LogInWords(const SplitLog& split);

// That the break that was looked for is not there, and which one is shown in its place. Empty
// where the selection is what was looked for.
std::string MissInWords(const LogGrid& grid);

// The active splits whose log is of another day than `day`, by name and day, each day on a line:
// "Larkfield, Easton show Thursday 14 January 2027". Empty when there is none.
std::string OtherDaysInWords(int32_t day);

}  // namespace logchecker
