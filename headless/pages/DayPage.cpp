#include <algorithm>
#include <utility>

#include "common/DatePicture.h"
#include "common/PathText.h"
#include "common/VersionData.h"
#include "headless/DayName.h"
#include "headless/Reports.h"
#include "headless/pages/DaySection.h"
#include "headless/pages/DayStyle.h"
#include "headless/pages/DayWords.h"
#include "headless/pages/Html.h"
#include "headless/pages/Page.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr size_t kMostAdvertBytes = size_t{3} * 1024 * 1024;  // of all days
constexpr size_t kLeastAdvertBytes = size_t{64} * 1024;       // of each

// "2027-01-15T14:03:21Z" for people, and for programs.
std::string CheckedAt(const std::string& utc) {
  constexpr size_t kDateLength = 10;
  constexpr size_t kTimeLength = 8;
  if (utc.size() < kDateLength + 1 + kTimeLength) return HtmlText(utc);
  return "<time datetime=\"" + HtmlText(utc) + "\">" + HtmlText(utc.substr(0, kDateLength)) + " " +
         HtmlText(utc.substr(kDateLength + 1, kTimeLength)) + " UTC</time>";
}

std::string Head(const CheckReport& report) {
  const std::string station = ToUtf8(report.station);
  const std::string shortStation = Shortened(station, kLongText);
  std::string html = "<header>\n<p class=\"kind\">Ad breaks of all splits</p>\n<h1>" +
                     Isolated(shortStation) + "</h1>\n";
  if (shortStation.size() < station.size()) html += "<div>" + Folded(station) + "</div>\n";
  return html + "<div class=\"muted\">Checked " + CheckedAt(report.checkedAt) + ", settings in " +
         Folded(ToUtf8(ShownPath(report.settings)), kLongLine) + "</div>\n</header>\n";
}

std::string DayRow(const DayReport& day, const std::vector<WarningKind>& accepted) {
  const DayVerdict verdict = VerdictOf(day, accepted);
  const std::string number = "<td class=\"number\">";
  std::string row = "<tr><th scope=\"row\"><a href=\"#" + DayId(day) + "\">" + DayName(day.day) +
                    "</a></th><td>" + Badge(verdict.state, verdict.words) + "</td>";
  if (!day.trouble.empty()) return row + "<td></td><td></td><td></td></tr>\n";
  return row + number + std::to_string(day.mismatches.size()) + "</td>" + number +
         std::to_string(SilentAdvertsOf(day)) + "</td>" + number +
         std::to_string(day.warnings.size()) + "</td></tr>\n";
}

std::string DaysTable(const CheckReport& report) {
  std::string html =
      "<table>\n<caption>Each day leads to its place below</caption>\n<thead><tr>"
      "<th scope=\"col\">Day</th><th scope=\"col\">Result</th>"
      "<th scope=\"col\" class=\"number\">Do not match</th>"
      "<th scope=\"col\" class=\"number\">Without audio</th>"
      "<th scope=\"col\" class=\"number\">Warnings</th></tr></thead>\n<tbody>\n";
  for (const DayReport& day : report.days) html += DayRow(day, report.accepted);
  return "<section>\n<h2>" + Counted(report.days.size(), "day") + "</h2>\n" +
         ScrollBox("The days", html + "</tbody>\n</table>\n") + "</section>\n";
}

// What a browser's tab has room for.
std::string Title(const CheckReport& report) {
  constexpr size_t kStationCharacters = 24;
  constexpr size_t kTitleCharacters = 70;
  const std::string station = Shortened(ToUtf8(report.station), kStationCharacters) + ": ";
  if (report.days.empty()) return station + "no day";
  const DayReport& first = report.days.front();
  if (report.days.size() > 1) {
    return station + IsoDate(first.day) + " to " + IsoDate(report.days.back().day);
  }
  return Shortened(station + IsoDate(first.day) + ": " + VerdictOf(first, report.accepted).words,
                   kTitleCharacters);
}

}  // namespace

std::string HtmlReport(const CheckReport& report) {
  std::string body = "<a class=\"skip\" href=\"#result\">To the result</a>\n" + Head(report) +
                     "<main id=\"result\">\n";
  if (report.days.size() > 1) body += DaysTable(report);
  const size_t share = kMostAdvertBytes / std::max<size_t>(report.days.size(), 1);
  for (const DayReport& day : report.days) {
    body += DaySection(day, report.accepted, std::max(share, kLeastAdvertBytes));
  }
  body +=
      std::string("</main>\n<footer><p class=\"muted\">logcheck ") + kVersion + "</p></footer>\n";
  return WholePage({Title(report), DayStyle(), std::move(body)});
}

}  // namespace logchecker
