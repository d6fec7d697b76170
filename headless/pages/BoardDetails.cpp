#include <cstddef>
#include <set>
#include <string>

#include "headless/pages/BoardPage.h"
#include "headless/pages/BoardWords.h"
#include "headless/pages/Html.h"

namespace logchecker {

namespace {

constexpr size_t kLongestHeadingName = 120;  // characters, in a heading
constexpr size_t kMostSources = 5;

bool AllMatch(const BoardStation& station) {
  return CountDays(station, PageState::kMatch) == station.days.size();
}

void AddWarnings(std::string& html, const BoardDay& day) {
  if (day.warnings.empty()) return;
  html += "<ul>";
  for (const std::string& warning : day.warnings) html += "<li>" + Isolated(warning) + "</li>";
  if (day.moreWarnings > 0) {
    html += "<li>and " + Grouped(static_cast<int64_t>(day.moreWarnings)) + " more</li>";
  }
  html += "</ul>";
}

// Where every log was looked for is long, and seldom asked for.
void AddSentence(std::string& html, const BoardDay& day) {
  const std::string sentence = DaySentence(day);
  if (day.noLogYet) {
    html +=
        "<details><summary>No split has a log yet.</summary>" + Isolated(sentence) + "</details>";
  } else {
    html += Isolated(sentence);
  }
}

void AddDay(std::string& html, const Board& board, size_t place, int32_t number,
            const BoardDay& day) {
  html += "<tr id=\"" + DayId(place, number) + "\"";
  if (day.state == PageState::kMatch) html += " class=\"all-right\"";
  html += "><th scope=\"row\">" + DayWithYear(number) + "</th><td>" +
          Badge(day.state, CellWords(day)) + "</td><td>";
  AddSentence(html, day);
  html += " <span class=\"muted when\">Checked " +
          HtmlText(MomentText(board.Origins()[day.origin].checkedAt)) + "</span>";
  AddWarnings(html, day);
  html += "</td></tr>\n";
}

// Its settings and the files that its days come from: where to go on looking.
void AddOrigins(std::string& html, const Board& board, const BoardStation& station) {
  std::set<std::string> sources;
  for (const auto& [number, day] : station.days) {
    sources.insert(board.Origins()[day.origin].source);
  }
  sources.erase("");
  const BoardOrigin& newest = board.Origins()[station.days.rbegin()->second.origin];
  html += "<p class=\"muted\">Settings in " + Isolated(newest.settings) + ".";
  size_t shown = 0;
  for (const std::string& source : sources) {
    if (shown == kMostSources) break;
    html += (shown++ == 0 ? " Read from " : ", ") + Isolated(source);
  }
  if (sources.size() > shown) {
    html += " and " + Grouped(static_cast<int64_t>(sources.size() - shown)) + " more";
  }
  html += shown > 0 ? ".</p>\n" : "</p>\n";
}

void AddStation(std::string& html, const Board& board, size_t place) {
  const BoardStation& station = board.Stations()[place];
  const std::string shortName = Shortened(station.name, kLongestHeadingName);
  html += std::string("<section") + (AllMatch(station) ? " class=\"all-right\"" : "") +
          "><h3 id=\"" + StationId(place) + "\">" + Isolated(shortName) + "</h3>\n";
  if (shortName != station.name) html += "<div>" + Folded(station.name) + "</div>\n";
  AddOrigins(html, board, station);
  html +=
      "<table class=\"days\">\n<thead><tr><th scope=\"col\">Day</th><th scope=\"col\">Result</th>"
      "<th scope=\"col\">What was found</th></tr></thead>\n<tbody>\n";
  for (const auto& [number, day] : station.days) AddDay(html, board, place, number, day);
  html += "</tbody>\n</table>\n</section>\n";
}

}  // namespace

void AddBoardDetails(std::string& html, const Board& board) {
  if (board.Stations().empty()) return;
  html +=
      "<h2 id=\"stations\">Station by station</h2>\n"
      "<p class=\"muted paper\">Days that match are left out on paper.</p>\n";
  for (size_t place = 0; place < board.Stations().size(); ++place) AddStation(html, board, place);
}

}  // namespace logchecker
