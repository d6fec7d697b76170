#include "headless/pages/DaySection.h"

#include <algorithm>

#include "headless/DayName.h"
#include "headless/pages/AdvertTables.h"
#include "headless/pages/DayPicture.h"
#include "headless/pages/DayTables.h"
#include "headless/pages/DayWords.h"
#include "headless/pages/Html.h"
#include "headless/pages/Page.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

const char* HeadingOf(WarningKind kind) {
  switch (kind) {
    case WarningKind::kSilent:
      return "Without audio";
    case WarningKind::kMidnight:
      return "At 00:00";
    case WarningKind::kPassedOver:
      return "Not compared";
    case WarningKind::kMissingLog:
      return "Log missing";
    default:
      return "Station";
  }
}

std::string Warnings(const DayReport& day, const std::vector<WarningKind>& accepted) {
  if (day.warnings.empty()) return "";
  std::string html = "<h3>Warnings</h3>\n<ul class=\"warnings\">\n";
  for (const Warning& warning : day.warnings) {
    const bool isAccepted =
        std::find(accepted.begin(), accepted.end(), warning.kind) != accepted.end();
    html += std::string("<li><strong>") + HeadingOf(warning.kind) +
            (isAccepted ? " (accepted)" : "") + ":</strong> " +
            Folded(ToUtf8(warning.text), kLongLine) + "</li>\n";
  }
  return html + "</ul>\n";
}

std::string Trouble(const DayReport& day) {
  return std::string("<div class=\"reason") + (day.noLogYet ? " quiet" : "") + "\"><strong>" +
         (day.noLogYet ? "There is nothing to check yet:" : "Why it was not checked:") +
         "</strong> " + Folded(ToUtf8(day.trouble), kLongLine) + "</div>\n";
}

// The times that differ in words, as many as are read at a glance.
std::string MismatchWords(const DayReport& day) {
  constexpr size_t kMostTimes = 20;
  const size_t count = day.mismatches.size();
  if (count == 0) return "At every time that was compared the breaks match.";
  if (HasNoTime(day.mismatches[0])) return "No break was compared.";
  std::string words = "The breaks do not match at ";
  for (size_t i = 0; i < std::min(count, kMostTimes); ++i) {
    words += (i == 0 ? "" : ", ") + ("<a href=\"#" + RowId(day, i) + "\">") +
             HtmlText(TimeText(day, i)) + "</a>";
  }
  if (count > kMostTimes) {
    words += " and at " + std::to_string(count - kMostTimes) + " further times, as the table says";
  }
  return words + ".";
}

std::string Picture(const DayReport& day) {
  return "<h3>The day as a picture</h3>\n<figure>\n" +
         ScrollBox("Picture of " + DayName(day.day), DayPicture(day)) + "<figcaption>" +
         MismatchWords(day) + "</figcaption>\n</figure>\n" + SplitTable(day);
}

std::string Mismatches(const DayReport& day, size_t mostBytes) {
  if (day.mismatches.empty()) return "";
  const AdvertTables adverts = AdvertTablesOf(day, mostBytes);
  std::string html = "<h3>What does not match</h3>\n" + MismatchTable(day, adverts.shown);
  if (adverts.shown > 0) html += "<h3>The adverts side by side</h3>\n" + adverts.html;
  const size_t left = day.mismatches.size() - adverts.shown;
  if (left > 0 && !HasNoTime(day.mismatches[0])) {
    html += "<p>The adverts of the last " + std::to_string(left) +
            (left == 1 ? " row are" : " rows are") +
            " left out, for the size of the page: the JSON report has all.</p>\n";
  }
  return html;
}

}  // namespace

std::string DaySection(const DayReport& day, const std::vector<WarningKind>& accepted,
                       size_t mostBytes) {
  const DayVerdict verdict = VerdictOf(day, accepted);
  std::string html = "<section id=\"" + DayId(day) + "\" class=\"day\">\n<h2>" + DayName(day.day) +
                     "</h2>\n<p class=\"verdict\">" + Badge(verdict.state, verdict.words) +
                     "</p>\n";
  if (!day.trouble.empty()) return html + Trouble(day) + Warnings(day, accepted) + "</section>\n";
  html += Warnings(day, accepted) + Picture(day) + Mismatches(day, mostBytes);
  const std::string silent = SilentTable(day);
  if (!silent.empty()) html += "<h3>Adverts without audio</h3>\n" + silent;
  return html + "</section>\n";
}

}  // namespace logchecker
