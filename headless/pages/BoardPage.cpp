#include "headless/pages/BoardPage.h"

#include <algorithm>
#include <iterator>

#include "common/DatePicture.h"
#include "headless/pages/BoardStyle.h"
#include "headless/pages/BoardWords.h"
#include "headless/pages/Html.h"

namespace logchecker {

namespace {

constexpr size_t kMostWorstStations = 10;
constexpr size_t kLongestListName = 80;  // characters, in a list

std::string Title(const Board& board, const BoardHead& head) {
  if (!head.title.empty()) return head.title;
  return "Advert breaks of " + Counted(static_cast<int64_t>(board.Stations().size()), "station");
}

std::string DaysCovered(const Board& board) {
  int32_t first = INT32_MAX;
  int32_t last = INT32_MIN;
  for (const BoardStation& station : board.Stations()) {
    if (station.days.empty()) continue;
    first = std::min(first, station.days.begin()->first);
    last = std::max(last, station.days.rbegin()->first);
  }
  if (first > last) return "";
  if (first == last) return DayWithYear(first) + ". ";
  return DayWithYear(first) + " to " + DayWithYear(last) + ". ";
}

void AddHead(std::string& html, const Board& board, const BoardHead& head) {
  html += "<p class=\"muted\">" +
          Counted(static_cast<int64_t>(board.Stations().size()), "station") + ", " +
          DaysCovered(board) + "Made " + MomentText(head.madeAt) + " by logcheck board.";
  if (head.staleHours) {
    html += " A report is too old when it was checked more than " +
            Counted(*head.staleHours, "hour") + " before.";
  }
  html += "</p>\n";
}

size_t CountDays(const Board& board, PageState state) {
  size_t days = 0;
  for (const BoardStation& station : board.Stations()) days += CountDays(station, state);
  return days;
}

size_t CountSetAside(const Board& board) {
  return static_cast<size_t>(
      std::count_if(board.Origins().begin(), board.Origins().end(),
                    [](const BoardOrigin& origin) { return origin.daysSetAside > 0; }));
}

std::string Count(PageState state, size_t days, const std::string& words) {
  return "<li>" +
         Badge(state, "<span class=\"count\">" + Grouped(static_cast<int64_t>(days)) + "</span> " +
                          words) +
         "</li>\n";
}

// Every state with its number of days; the worst first.
void AddCounts(std::string& html, const Board& board) {
  html += "<ul class=\"counts\">\n";
  if (!board.Failures().empty()) {
    html += Count(PageState::kNotChecked, board.Failures().size(),
                  std::string("<a href=\"#unread\">") +
                      (board.Failures().size() == 1 ? "report" : "reports") + " unreadable</a>");
  }
  for (const PageState state : kStatesFromTheWorst) {
    const size_t days = CountDays(board, state);
    if (days > 0) html += Count(state, days, WordsOfDays(days, state));
  }
  html += "</ul>\n";
}

bool NeedsSomebody(const BoardStation& station) {
  return CountDays(station, PageState::kMatch) + CountDays(station, PageState::kNoLog) <
         station.days.size();
}

void AddWorstStations(std::string& html, const Board& board) {
  const auto& stations = board.Stations();
  const auto needing = std::count_if(stations.begin(), stations.end(), NeedsSomebody);
  if (stations.empty()) return;
  html += "<h2 id=\"worst\">Stations to look at</h2>\n";
  if (needing == 0) {
    html += "<p>None.</p>\n";
    return;
  }
  html += "<ol class=\"worst\">\n";
  const size_t shown = std::min(static_cast<size_t>(needing), kMostWorstStations);
  for (size_t i = 0; i < shown; ++i) {
    html += "<li><a href=\"#" + StationId(i) + "\">" +
            Isolated(Shortened(stations[i].name, kLongestListName)) +
            "</a>: " + StationWords(stations[i]) + "</li>\n";
  }
  html += "</ol>\n";
  if (static_cast<size_t>(needing) > shown) {
    html += "<p>And " + Grouped(needing - static_cast<int64_t>(shown)) +
            " more, on top of <a href=\"#grid\">the table</a>.</p>\n";
  }
}

void AddFailures(std::string& html, const Board& board) {
  if (board.Failures().empty()) return;
  html += "<h2 id=\"unread\">Reports that could not be read</h2>\n<ul>\n";
  for (const BoardFailure& failure : board.Failures()) {
    html += "<li>" + Isolated(failure.source) + " " + HtmlText(failure.reason) + "</li>\n";
  }
  html += "</ul>\n";
}

// One name for stations of two folders is more likely a name that was not given than two checks.
std::string SetAsideText(const BoardOrigin& origin, const BoardOrigin& winner) {
  std::string days = DayWithYear(origin.firstSetAside);
  if (origin.daysSetAside > 1) {
    days += " to " + DayWithYear(origin.lastSetAside) + " (" + Counted(origin.daysSetAside, "day") +
            ")";
  }
  std::string html =
      Isolated(origin.source) + ": " + Isolated(Shortened(origin.station, kLongestListName)) +
      ", " + days + ", checked " + HtmlText(MomentText(origin.checkedAt)) + "; " +
      Isolated(winner.source) + " counts, checked " + HtmlText(MomentText(winner.checkedAt));
  if (origin.settings != winner.settings) {
    html += ". Their settings lie in two folders, " + Isolated(origin.settings) + " and " +
            Isolated(winner.settings) +
            ": where these are two stations, give each a name with --station";
  }
  return html;
}

void AddSetAside(std::string& html, const Board& board) {
  const size_t reports = CountSetAside(board);
  if (reports == 0) return;
  html += "<h2 id=\"older\">Reports set aside</h2>\n<p>" +
          Counted(static_cast<int64_t>(reports), "report") + (reports == 1 ? " has" : " have") +
          " days that another report of the same station has too. The one that was checked last "
          "counts.</p>\n<ul>\n";
  for (const BoardOrigin& origin : board.Origins()) {
    if (origin.daysSetAside == 0) continue;
    html += "<li>" + SetAsideText(origin, board.Origins()[origin.inFavourOf]) + "</li>\n";
  }
  html += "</ul>\n";
}

}  // namespace

std::string StationId(size_t place) { return "s" + std::to_string(place + 1); }

std::string DayId(size_t place, int32_t day) { return StationId(place) + "-" + IsoDate(day); }

std::string BoardPage(const Board& board, const BoardHead& head) {
  Page page;
  page.title = Shortened(Title(board, head), kLongestTextOnABoard);
  page.style = BoardStyle();
  page.body = "<header>\n<h1>" + Isolated(page.title) + "</h1>\n";
  AddHead(page.body, board, head);
  AddCounts(page.body, board);
  page.body += "</header>\n<main>\n";
  AddWorstStations(page.body, board);
  AddFailures(page.body, board);
  AddBoardGrid(page.body, board);
  AddBoardDetails(page.body, board);
  AddSetAside(page.body, board);
  page.body += "</main>\n";
  return WholePage(page);
}

}  // namespace logchecker
