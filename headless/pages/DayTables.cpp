#include "headless/pages/DayTables.h"

#include <algorithm>

#include "common/PathText.h"
#include "common/TimeText.h"
#include "headless/DayName.h"
#include "headless/pages/DayWords.h"
#include "headless/pages/Html.h"
#include "headless/pages/Outliers.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

std::string NumberCell(size_t number, const char* className) {
  return std::string("<td class=\"number") + (number > 0 ? className : "") + "\">" +
         std::to_string(number) + "</td>";
}

std::string Heading(const std::string& words) { return "<th scope=\"col\">" + words + "</th>"; }

std::string NumberHeading(const std::string& words) {
  return "<th scope=\"col\" class=\"number\">" + words + "</th>";
}

// From the first break to the last.
std::string Extent(const SplitReport& split) {
  const BreakReport* first = nullptr;
  const BreakReport* last = nullptr;
  for (const BreakReport& one : split.breakList) {
    if (one.time < 0) continue;
    if (first == nullptr || one.time < first->time) first = &one;
    if (last == nullptr || one.time > last->time) last = &one;
  }
  if (first == nullptr) return "none";
  return FormatTimeDisplay(first->time, kMaskHoursMinutes) + " to " +
         FormatTimeDisplay(last->time, kMaskHoursMinutes);
}

struct Differences {
  size_t missing = 0;
  size_t odd = 0;  // breaks that are there
};

std::vector<Differences> DifferencesOf(const DayReport& day) {
  std::vector<Differences> differences(day.splits.size());
  for (const BreakMismatch& mismatch : day.mismatches) {
    if (HasNoTime(mismatch)) continue;
    const Outliers outliers = OutliersOf(mismatch);
    for (size_t i = 0; i < differences.size(); ++i) {
      if (!mismatch.Lengths[i].found) {
        ++differences[i].missing;
      } else if (outliers.odd[i]) {
        ++differences[i].odd;
      }
    }
  }
  return differences;
}

std::string SilentCount(const DayReport& day, const SplitReport& split) {
  const size_t count = split.silentAdverts.size();
  if (count == 0) return "<td class=\"number\">0</td>";
  return "<td class=\"number some\"><a href=\"#" + SilentId(day, split, 0) + "\">" +
         std::to_string(count) + "</a></td>";
}

// A name that is cut in its heading stands whole beside the path.
std::string LogCell(const SplitReport& split) {
  const std::string name = ToUtf8(split.name);
  const bool isCut = Shortened(name, kLongText).size() < name.size();
  return "<td class=\"path\">" + (isCut ? Folded(name) : "") +
         (split.loaded ? "" : "<strong>no log:</strong> ") +
         Folded(ToUtf8(ShownPath(split.logPath))) + "</td>";
}

std::string SplitRow(const DayReport& day, const SplitReport& split, const Differences& differs) {
  return "<tr><th scope=\"row\" class=\"name\">" +
         Isolated(Shortened(ToUtf8(split.name), kLongText)) + "</th>" +
         NumberCell(static_cast<size_t>(split.breaks), "") + "<td class=\"extent\">" +
         Extent(split) + "</td>" + NumberCell(static_cast<size_t>(split.adverts), "") +
         NumberCell(differs.missing, " some") + NumberCell(differs.odd, " some") +
         SilentCount(day, split) + LogCell(split) + "</tr>\n";
}

// The column headings of the results: the time, and each split.
std::string SplitHeadings(const DayReport& day) {
  std::string html;
  for (const SplitReport& split : day.splits) {
    html += "<th scope=\"col\" class=\"number\">" + Isolated(HeadingName(split)) + "</th>";
  }
  return html;
}

std::string MismatchRow(const DayReport& day, size_t mismatch, bool withAdverts) {
  std::string time = HtmlText(TimeText(day, mismatch));
  if (withAdverts) time = "<a href=\"#" + AdvertsId(day, mismatch) + "\">" + time + "</a>";
  std::string row = "<tr id=\"" + RowId(day, mismatch) + "\"><th scope=\"row\">" + time + "</th>";
  const Outliers outliers = OutliersOf(day.mismatches[mismatch]);
  for (size_t i = 0; i < day.splits.size(); ++i) {
    row += std::string("<td class=\"number") + (outliers.odd[i] ? " odd" : "") + "\">" +
           HtmlText(CellText(day, mismatch, i)) + "</td>";
  }
  return row + "</tr>\n";
}

std::string SilentRow(const DayReport& day, const SplitReport& split, size_t index) {
  const SilentAdvert& advert = split.silentAdverts[index];
  return "<tr id=\"" + SilentId(day, split, index) + "\"><th scope=\"row\">" +
         Isolated(HeadingName(split)) + "</th><td>" + HtmlText(ToUtf8(advert.time)) +
         "</td><td class=\"number\">" + std::to_string(advert.cart) + "</td><td>" +
         Folded(ToUtf8(advert.description)) + "</td><td>" + Folded(ToUtf8(advert.reference)) +
         "</td><td class=\"number\">" + std::to_string(advert.row) + "</td></tr>\n";
}

}  // namespace

std::string SplitTable(const DayReport& day) {
  std::string html =
      "<table>\n<caption>The splits, in the order of the lanes</caption>\n"
      "<thead><tr>" +
      Heading("Split") + NumberHeading("Breaks") + Heading("From, to") + NumberHeading("Adverts") +
      NumberHeading("Not found") + NumberHeading("Differ") + NumberHeading("Without audio") +
      Heading("Log") + "</tr></thead>\n<tbody>\n";
  const std::vector<Differences> differences = DifferencesOf(day);
  for (size_t i = 0; i < day.splits.size(); ++i) {
    html += SplitRow(day, day.splits[i], differences[i]);
  }
  return ScrollBox("Splits of " + DayName(day.day), html + "</tbody>\n</table>\n");
}

std::string MismatchTable(const DayReport& day, size_t withAdverts) {
  std::string html =
      "<table>\n<caption>What differs is marked with \xE2\x89\xA0; a time leads to "
      "the adverts</caption>\n<thead><tr>" +
      Heading("Time") + SplitHeadings(day) + "</tr></thead>\n<tbody>\n";
  for (size_t i = 0; i < day.mismatches.size(); ++i) html += MismatchRow(day, i, i < withAdverts);
  return ScrollBox("Mismatches of " + DayName(day.day), html + "</tbody>\n</table>\n");
}

std::string SilentTable(const DayReport& day) {
  std::string rows;
  size_t listed = 0;
  for (const SplitReport& split : day.splits) {
    const size_t count = std::min(split.silentAdverts.size(), kMostSilentRows);
    for (size_t i = 0; i < count; ++i) rows += SilentRow(day, split, i);
    listed += count;
  }
  if (listed == 0) return "";
  const size_t rest = SilentAdvertsOf(day) - listed;
  std::string html = "<table id=\"" + SilentTableId(day) + "\">\n<caption>" +
                     Counted(SilentAdvertsOf(day), "advert") + " without audio";
  if (rest > 0) {
    html += ", of which the first " + std::to_string(kMostSilentRows) +
            " of each split are listed; the JSON report has all";
  }
  html += "</caption>\n<thead><tr>" + Heading("Split") + Heading("Time") + NumberHeading("Cart") +
          Heading("Description") + Heading("Reference") + NumberHeading("Row of the log") +
          "</tr></thead>\n<tbody>\n" + rows + "</tbody>\n</table>\n";
  return ScrollBox("Adverts without audio of " + DayName(day.day), html);
}

}  // namespace logchecker
