// Dates and times by a picture, such as "YYMMDD" or "ddddd hh:nn:ss".
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace logchecker {

// Letters count in either case.
//   d dd ddd dddd    day, with a leading zero, short name, full name
//   ddddd dddddd     short and long date of the system
//   w ww             day of the week (Sunday is 1), week of the year
//   m mm mmm mmmm    month, as for the day; m and mm right behind h or hh are minutes
//   q                quarter
//   y yy yyyy        day of the year, two and four digits of the year
//   h hh n nn s ss   hour, minute, second
//   "text" \c        as they stand, without the marks
// Every other character that is no letter stands for itself. A picture with any other letter or run
// of letters is refused, and so is a day outside the years 100 to 9999.
std::optional<std::string> FormatDate(double dateTime, std::string_view picture);

// The day as YYYY-MM-DD, "?" outside those years.
std::string IsoDate(int32_t day);

}  // namespace logchecker
