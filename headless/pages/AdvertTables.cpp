#include "headless/pages/AdvertTables.h"

#include <algorithm>
#include <vector>

#include "headless/pages/DayWords.h"
#include "headless/pages/Html.h"
#include "headless/pages/Outliers.h"
#include "headless/pages/Page.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

// One mismatch, by split.
struct Comparison {
  const DayReport& day;
  size_t number;
  Outliers outliers;
  std::vector<std::vector<bool>> oddAdverts;
  size_t places = 0;  // adverts of the longest

  const BreakMismatch& Mismatch() const { return day.mismatches[number]; }
  const BreakAdverts& Adverts() const { return day.adverts[number]; }
};

Comparison Compare(const DayReport& day, size_t number) {
  Comparison comparison{day, number, OutliersOf(day.mismatches[number]), {}, 0};
  const BreakAdverts& adverts = comparison.Adverts();
  for (size_t i = 0; i < adverts.size(); ++i) {
    comparison.oddAdverts.emplace_back();
    if (!adverts[i]) continue;
    comparison.places = std::max(comparison.places, adverts[i]->size());
    const bool compared = comparison.outliers.usual && comparison.outliers.odd[i];
    if (compared) {
      comparison.oddAdverts[i] = OddAdverts(*adverts[i], *adverts[*comparison.outliers.usual]);
    }
  }
  return comparison;
}

// "Coast has 2:04.98, the others 2:44.98." in one sentence for each split that differs.
std::string Reason(const Comparison& comparison) {
  const BreakMismatch& mismatch = comparison.Mismatch();
  std::string missing;
  std::string differing;
  for (size_t i = 0; i < mismatch.Lengths.size(); ++i) {
    if (!comparison.outliers.odd[i]) continue;
    const std::string name = Isolated(HeadingName(comparison.day.splits[i]));
    if (!mismatch.Lengths[i].found) {
      missing += (missing.empty() ? "" : ", ") + name;
    } else {
      differing += (differing.empty() ? "" : ", ") + name + " has " +
                   LengthText(mismatch.Lengths[i].seconds);
    }
  }
  std::string words;
  if (!missing.empty()) words += "No break in " + missing + ". ";
  if (differing.empty()) return words;
  words += differing;
  if (comparison.outliers.usual) {
    words += ", usual is " + LengthText(mismatch.Lengths[*comparison.outliers.usual].seconds);
  } else if (comparison.outliers.mostMissing) {
    words += ", the others have no break";
  }
  return words + ".";
}

std::string AdvertCell(const Comparison& comparison, size_t split, size_t place) {
  const auto& adverts = comparison.Adverts()[split];
  if (!adverts && place > 0) return "";
  if (!adverts) {
    const size_t rows = std::min(comparison.places, kMostAdvertRows);
    return "<td class=\"none\" rowspan=\"" + std::to_string(rows) + "\">no break</td>";
  }
  if (place >= adverts->size()) return "<td></td>";
  const AdvertReport& advert = (*adverts)[place];
  const auto& odd = comparison.oddAdverts[split];
  const bool isOdd = place < odd.size() && odd[place];
  std::string cell = !advert.audio ? "<td class=\"mute\">" : isOdd ? "<td class=\"odd\">" : "<td>";
  cell += advert.audio ? "<b>" + LengthText(advert.length) + "</b>" : "<b>no audio</b>";
  cell += Folded(ToUtf8(advert.description)) + "<small>" + std::to_string(advert.cart);
  const std::string reference = ToUtf8(advert.reference);
  if (!reference.empty()) cell += " " + Isolated(Shortened(reference, kLongText));
  return cell + "</small></td>";
}

std::string Sums(const Comparison& comparison) {
  std::string row = "<tr><th scope=\"row\">Sum</th>";
  for (size_t i = 0; i < comparison.Mismatch().Lengths.size(); ++i) {
    const BreakMismatch::Length& length = comparison.Mismatch().Lengths[i];
    row += std::string("<td class=\"sum") + (comparison.outliers.odd[i] ? " odd" : "") + "\">" +
           (length.found ? LengthText(length.seconds) : "Not Found") + "</td>";
  }
  return row + "</tr>\n";
}

std::string Table(const Comparison& comparison) {
  const std::string time = TimeText(comparison.day, comparison.number);
  std::string html = "<table class=\"adverts\">\n<caption>" + Reason(comparison) +
                     "</caption>\n<thead><tr><th scope=\"col\">No.</th>";
  for (const SplitReport& split : comparison.day.splits) {
    html += "<th scope=\"col\">" + Isolated(HeadingName(split)) + "</th>";
  }
  html += "</tr></thead>\n<tbody>\n";
  const size_t rows = std::min(comparison.places, kMostAdvertRows);
  for (size_t place = 0; place < rows; ++place) {
    html += "<tr><th scope=\"row\">" + std::to_string(place + 1) + "</th>";
    for (size_t i = 0; i < comparison.day.splits.size(); ++i) {
      html += AdvertCell(comparison, i, place);
    }
    html += "</tr>\n";
  }
  html += "</tbody>\n<tfoot>\n" + Sums(comparison) + "</tfoot>\n</table>\n";
  if (comparison.places > rows) {
    html += "<p>" + Counted(comparison.places - rows, "further advert") +
            " of the longest break: the JSON report has all.</p>\n";
  }
  return html;
}

// Where to go from here.
std::string Ways(const DayReport& day, size_t number) {
  std::string html = "<p class=\"ways\"><a href=\"#" + RowId(day, number) + "\">Row of " +
                     HtmlText(TimeText(day, number)) + "</a>";
  return html + "</p>\n";
}

std::string Section(const DayReport& day, size_t number) {
  const std::string time = TimeText(day, number);
  return "<section id=\"" + AdvertsId(day, number) + "\" class=\"break\">\n<h4>" + HtmlText(time) +
         "</h4>\n" + Ways(day, number) +
         ScrollBox("Adverts at " + time, Table(Compare(day, number))) + "</section>\n";
}

}  // namespace

AdvertTables AdvertTablesOf(const DayReport& day, size_t mostBytes) {
  AdvertTables tables;
  for (size_t i = 0; i < day.mismatches.size(); ++i) {
    if (HasNoTime(day.mismatches[i])) break;
    std::string section = Section(day, i);
    if (tables.html.size() + section.size() > mostBytes) break;
    tables.html += section;
    ++tables.shown;
  }
  return tables;
}

}  // namespace logchecker
