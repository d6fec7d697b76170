#include "common/DatePicture.h"

#include <cctype>

#include "common/Dates.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

struct Moment {
  int32_t dayNumber = 0;
  int32_t day = 0;
  int32_t month = 0;
  int32_t year = 0;
  int32_t weekday = 0;  // from 1, Sunday
  int32_t dayOfYear = 0;
  int32_t hour = 0;
  int32_t minute = 0;
  int32_t second = 0;
};

Moment TakeApart(double dateTime) {
  const DayAndSeconds parts = SplitDateTime(dateTime);
  const std::chrono::year_month_day date = DateOfDay(parts.Days);
  Moment moment;
  moment.dayNumber = parts.Days;
  moment.day = static_cast<int32_t>(static_cast<unsigned>(date.day()));
  moment.month = static_cast<int32_t>(static_cast<unsigned>(date.month()));
  moment.year = static_cast<int32_t>(date.year());
  moment.weekday =
      static_cast<int32_t>(std::chrono::weekday{std::chrono::sys_days{date}}.c_encoding()) + 1;
  moment.dayOfYear = parts.Days -
                     DayOfDate(std::chrono::year_month_day{date.year(), std::chrono::January,
                                                           std::chrono::day{1}}) +
                     1;
  const auto seconds = static_cast<int32_t>(parts.Seconds);
  moment.hour = seconds / 3600;
  moment.minute = seconds / 60 % 60;
  moment.second = seconds % 60;
  return moment;
}

std::string Digits(int32_t value, size_t width) {
  std::string text = std::to_string(value);
  return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

// The week that 1 January lies in is week 1, and a week begins on Sunday.
int32_t WeekOfYear(const Moment& moment) {
  const int32_t firstWeekday = (moment.weekday - moment.dayOfYear % 7 + 7) % 7;
  return (moment.dayOfYear + firstWeekday - 1) / 7 + 1;
}

std::optional<std::string> FormatDay(const Moment& moment, size_t count) {
  switch (count) {
    case 1:
    case 2:
      return Digits(moment.day, count);
    case 3:
    case 4:
      return Os().clock.WeekdayName(moment.weekday, count == 3);
    case 5:
      return Os().clock.ShortDate(moment.dayNumber);
    case 6:
      return Os().clock.LongDate(moment.dayNumber);
    default:
      return std::nullopt;
  }
}

std::optional<std::string> FormatYear(const Moment& moment, size_t count) {
  if (count == 1) return Digits(moment.dayOfYear, 1);
  if (count == 2) return Digits(moment.year % 100, 2);
  if (count == 4) return Digits(moment.year, 4);
  return std::nullopt;
}

// One run of `count` equal letters; `letter` is in lower case.
std::optional<std::string> FormatRun(const Moment& moment, char letter, size_t count,
                                     bool afterHour) {
  const bool short2 = count <= 2;
  switch (letter) {
    case 'd':
      return FormatDay(moment, count);
    case 'm':
      if (short2) return Digits(afterHour ? moment.minute : moment.month, count);
      if (count <= 4) return Os().clock.MonthName(moment.month, count == 3);
      return std::nullopt;
    case 'y':
      return FormatYear(moment, count);
    case 'h':
      return short2 ? std::optional(Digits(moment.hour, count)) : std::nullopt;
    case 'n':
      return short2 ? std::optional(Digits(moment.minute, count)) : std::nullopt;
    case 's':
      return short2 ? std::optional(Digits(moment.second, count)) : std::nullopt;
    case 'w':
      if (count == 1) return Digits(moment.weekday, 1);
      return count == 2 ? std::optional(Digits(WeekOfYear(moment), 1)) : std::nullopt;
    case 'q':
      return count == 1 ? std::optional(Digits((moment.month - 1) / 3 + 1, 1)) : std::nullopt;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<std::string> FormatDate(double dateTime, std::string_view picture) {
  if (!(dateTime >= kFirstDay && dateTime < kLastDay + 1)) return std::nullopt;
  const Moment moment = TakeApart(dateTime);
  std::string text;
  bool afterHour = false;
  while (!picture.empty()) {
    const char c = picture.front();
    if (c == '"' || c == '\\') {
      const size_t end = c == '"' ? picture.find('"', 1) : 2;
      if (end == std::string_view::npos || end > picture.size()) return std::nullopt;
      text += picture.substr(1, end - 1);
      picture.remove_prefix(c == '"' ? end + 1 : end);
    } else if (std::isalpha(static_cast<unsigned char>(c)) != 0) {
      const char letter = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
      size_t count = 0;
      while (count < picture.size() &&
             std::tolower(static_cast<unsigned char>(picture[count])) == letter) {
        ++count;
      }
      const std::optional<std::string> run = FormatRun(moment, letter, count, afterHour);
      if (!run) return std::nullopt;
      text += *run;
      afterHour = letter == 'h';
      picture.remove_prefix(count);
    } else {
      text += c;
      picture.remove_prefix(1);
    }
  }
  return text;
}

std::string IsoDate(int32_t day) { return FormatDate(day, "yyyy-mm-dd").value_or("?"); }

}  // namespace logchecker
