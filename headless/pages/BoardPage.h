// The board as a page.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "headless/pages/Board.h"

namespace logchecker {

struct BoardHead {
  std::string title;   // UTF-8; empty for one of the program's own
  std::string madeAt;  // UTC, as 2027-01-15T14:03:21Z
  std::optional<int32_t> staleHours;
};

// A summary, which a phone shows first, then stations by days, then what stands behind each of
// their cells. The board must be settled.
std::string BoardPage(const Board& board, const BoardHead& head);

// Stations down and days across, in tables of at most so many days, so that each fits a screen and
// a sheet of paper. A station stands in those that it has a day in.
inline constexpr size_t kMostDaysAcross = 14;
void AddBoardGrid(std::string& html, const Board& board);

// A section for each station with a row for each day.
void AddBoardDetails(std::string& html, const Board& board);

// Where the section of the station at this place of Board::Stations is, and a day's row in it.
std::string StationId(size_t place);
std::string DayId(size_t place, int32_t day);

}  // namespace logchecker
