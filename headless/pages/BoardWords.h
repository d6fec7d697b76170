// What a board says in words.
#pragma once

#include <cstdint>
#include <string>

#include "headless/pages/Board.h"

namespace logchecker {

// 12345 as "12,345".
std::string Grouped(int64_t number);

// "1 day", "12,345 days"; the plural in "s" unless one is given.
std::string Counted(int64_t number, const std::string& one, const std::string& many = "");

// Days as their heads say it, in English: "Fri 15 Jan", and "Fri 15 Jan 2027".
std::string DayWithoutYear(int32_t day);
std::string DayWithYear(int32_t day);

// A moment of a report, "2027-01-15T14:03:21Z", as "2027-01-15 14:03 UTC". Other text stays.
std::string MomentText(const std::string& isoTime);

// What is said of so many days that are in a state, behind their number: "day matches", "days
// without a log yet".
std::string WordsOfDays(size_t days, PageState state);

// What the day's cell says: "match", "5 differ", "2 to mend".
std::string CellWords(const BoardDay& day);

// What a station has come to: "2 days not checked, 3 days with 12 breaks that differ". Days that
// match have no words where others have.
std::string StationWords(const BoardStation& station);

// The sentences about a day: what was compared and found, or why it was not.
std::string DaySentence(const BoardDay& day);

}  // namespace logchecker
