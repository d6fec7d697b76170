#include <algorithm>
#include <set>
#include <vector>

#include "common/DatePicture.h"
#include "headless/pages/BoardPage.h"
#include "headless/pages/BoardWords.h"
#include "headless/pages/Html.h"

namespace logchecker {

namespace {

constexpr size_t kLongestName = 60;  // characters, in the table
constexpr size_t kFewDays = 7;       // a table of no more does not take a wide screen's width

using Days = std::vector<int32_t>;

// All days that some station has, in tables of one size as near as can be.
std::vector<Days> DaysOfTables(const Board& board) {
  std::set<int32_t> all;
  for (const BoardStation& station : board.Stations()) {
    for (const auto& [day, found] : station.days) all.insert(day);
  }
  const size_t tables = (all.size() + kMostDaysAcross - 1) / kMostDaysAcross;
  std::vector<Days> result(tables);
  size_t place = 0;
  for (const int32_t day : all) result[place++ * tables / all.size()].push_back(day);
  return result;
}

bool HasAnyOf(const BoardStation& station, const Days& days) {
  const auto from = station.days.lower_bound(days.front());
  return from != station.days.end() && from->first <= days.back();
}

// The day of the week goes above the date where they have no room side by side.
std::string DayOnTwoLines(int32_t day) {
  const std::string text = DayWithoutYear(day);
  const size_t blank = text.find(' ');
  return text.substr(0, blank + 1) + "<span>" + text.substr(blank + 1) + "</span>";
}

void AddHeadings(std::string& html, const Days& days) {
  html += "<thead><tr><th scope=\"col\">Station</th>";
  for (const int32_t day : days) {
    html += "<th scope=\"col\"><time datetime=\"" + IsoDate(day) + "\">" + DayOnTwoLines(day) +
            "</time></th>";
  }
  html += "</tr></thead>\n";
}

void AddCell(std::string& html, const BoardStation& station, size_t place, int32_t number) {
  const auto found = station.days.find(number);
  if (found == station.days.end()) {
    html += "<td class=\"none\">no report</td>";
    return;
  }
  html += std::string("<td class=\"") + ClassOf(found->second.state) + "\"><a href=\"#" +
          DayId(place, number) + "\">" + Sign(found->second.state) + " " +
          CellWords(found->second) + "</a></td>";
}

void AddRow(std::string& html, const BoardStation& station, size_t place, const Days& days) {
  html += "<tr><th scope=\"row\"><a href=\"#" + StationId(place) + "\">" +
          Isolated(Shortened(station.name, kLongestName)) + "</a></th>";
  for (const int32_t day : days) AddCell(html, station, place, day);
  html += "</tr>\n";
}

std::string TableOf(const Board& board, const Days& days) {
  const std::string caption = days.size() == 1
                                  ? DayWithYear(days.front())
                                  : DayWithYear(days.front()) + " to " + DayWithYear(days.back());
  std::string html = "<table" + std::string(days.size() > kFewDays ? " class=\"many\"" : "") +
                     ">\n<caption>" + caption + "</caption>\n";
  AddHeadings(html, days);
  html += "<tbody>\n";
  for (size_t place = 0; place < board.Stations().size(); ++place) {
    const BoardStation& station = board.Stations()[place];
    if (HasAnyOf(station, days)) AddRow(html, station, place, days);
  }
  return html + "</tbody>\n</table>\n";
}

}  // namespace

void AddBoardGrid(std::string& html, const Board& board) {
  const std::vector<Days> tables = DaysOfTables(board);
  if (tables.empty()) return;
  html += "<h2 id=\"grid\">Stations and days</h2>\n";
  for (const Days& days : tables) {
    html += "<div class=\"board\">" +
            ScrollBox("Stations and days from " + DayWithYear(days.front()), TableOf(board, days)) +
            "</div>\n";
  }
}

}  // namespace logchecker
