#include "headless/pages/BoardWords.h"

#include <chrono>

#include "common/Dates.h"

namespace logchecker {

namespace {

constexpr const char* kWeekdays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

// A message has no full stop where it ends a line, and here more text follows.
std::string AsSentence(const std::string& message) {
  return message + (message.back() == '.' ? "" : ".");
}

std::string WhatWasCompared(const BoardDay& day) {
  return Counted(day.counts.breaks, "break") + " and " + Counted(day.counts.adverts, "advert");
}

std::string WhatDiffers(const BoardDay& day) {
  const std::string times =
      day.moreTimes == 0
          ? day.times
          : day.times + " and " + Grouped(static_cast<int64_t>(day.moreTimes)) + " more";
  return (day.counts.mismatches == 1 ? "1 break differs: "
                                     : Grouped(day.counts.mismatches) + " breaks differ: ") +
         times + ".";
}

// What the day's report said, however old.
std::string WhatWasFound(const BoardDay& day) {
  if (!day.trouble.empty()) return AsSentence(day.trouble);
  if (day.counts.mismatches == 0) {
    return "All breaks that were compared match: " + WhatWasCompared(day) + " in all splits.";
  }
  const std::string accepted = day.code == 0 ? " They were accepted." : "";
  return WhatDiffers(day) + accepted;
}

size_t Warnings(const BoardDay& day) { return day.warnings.size() + day.moreWarnings; }

}  // namespace

std::string Grouped(int64_t number) {
  std::string digits = std::to_string(number);
  const size_t first = digits[0] == '-' ? 1 : 0;
  for (size_t place = digits.size(); place > first + 3; place -= 3) digits.insert(place - 3, ",");
  return digits;
}

std::string Counted(int64_t number, const std::string& one, const std::string& many) {
  if (number == 1) return "1 " + one;
  return Grouped(number) + " " + (many.empty() ? one + "s" : many);
}

std::string DayWithoutYear(int32_t day) {
  const std::chrono::year_month_day date = DateOfDay(day);
  const unsigned weekday = std::chrono::weekday{std::chrono::sys_days{date}}.c_encoding();
  return std::string(kWeekdays[weekday]) + " " + std::to_string(static_cast<unsigned>(date.day())) +
         " " + kMonths[static_cast<unsigned>(date.month()) - 1];
}

std::string DayWithYear(int32_t day) {
  return DayWithoutYear(day) + " " + std::to_string(static_cast<int>(DateOfDay(day).year()));
}

std::string MomentText(const std::string& isoTime) {
  constexpr size_t kIsoTimeLength = 20;
  constexpr size_t kDateLength = 10;
  if (isoTime.size() != kIsoTimeLength) return isoTime;
  return isoTime.substr(0, kDateLength) + " " + isoTime.substr(kDateLength + 1, 5) + " UTC";
}

std::string WordsOfDays(size_t days, PageState state) {
  const std::string noun = days == 1 ? "day " : "days ";
  switch (state) {
    case PageState::kMatch:
      return noun + (days == 1 ? "matches" : "match");
    case PageState::kDiffers:
      return noun + (days == 1 ? "differs" : "differ");
    case PageState::kSee:
      return noun + "to mend";
    case PageState::kNotChecked:
      return noun + "not checked";
    case PageState::kNoLog:
      return noun + "without a log yet";
    default:
      return noun + "too old";
  }
}

std::string CellWords(const BoardDay& day) {
  switch (day.state) {
    case PageState::kDiffers:
      return day.counts.mismatches == 1 ? "1 differs" : Grouped(day.counts.mismatches) + " differ";
    case PageState::kSee:
      return Grouped(static_cast<int64_t>(Warnings(day))) + " to mend";
    case PageState::kMatch:
      if (day.counts.mismatches > 0) return Grouped(day.counts.mismatches) + " accepted";
      return Warnings(day) > 0 ? "match, noted" : "match";
    case PageState::kNotChecked:
      return "not checked";
    case PageState::kNoLog:
      return "no log yet";
    default:
      return "too old";
  }
}

std::string StationWords(const BoardStation& station) {
  std::string words;
  for (const PageState state : kStatesFromTheWorst) {
    const size_t days = CountDays(station, state);
    if (days == 0 || (state == PageState::kMatch && !words.empty())) continue;
    if (!words.empty()) words += ", ";
    if (state != PageState::kDiffers) {
      words += Grouped(static_cast<int64_t>(days)) + " " + WordsOfDays(days, state);
      continue;
    }
    const int64_t mismatches = CountMismatches(station);
    words += Counted(static_cast<int64_t>(days), "day") + " with " + Counted(mismatches, "break") +
             (mismatches == 1 ? " that differs" : " that differ");
  }
  return words;
}

std::string DaySentence(const BoardDay& day) {
  if (day.state != PageState::kOld) return WhatWasFound(day);
  return "The report is too old to go by. It said: " + WhatWasFound(day);
}

}  // namespace logchecker
