#include "headless/pages/PictureMarks.h"

#include <algorithm>
#include <vector>

#include "headless/pages/DayWords.h"
#include "headless/pages/Html.h"
#include "headless/pages/Outliers.h"
#include "headless/pages/PictureScale.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr double kLeastMark = 5;
constexpr double kSignWidth = 12;  // of the cross in a gap
constexpr double kSilentWidth = 10;
constexpr double kSilentHeight = 8;

// The mismatches `first` to `end` - 1.
struct Run {
  size_t first = 0;
  size_t end = 0;
};

std::vector<Run> RunsOf(const DayReport& day) {
  std::vector<Run> runs;
  for (size_t i = 0; i < day.mismatches.size(); ++i) {
    if (HasNoTime(day.mismatches[i])) continue;
    const bool joins =
        !runs.empty() &&
        XOf(day.mismatches[i].Time) - XOf(day.mismatches[runs.back().first].Time) < kFlagWidth + 2;
    if (!joins) runs.push_back({i, i});
    runs.back().end = i + 1;
  }
  return runs;
}

// As wide as the break, and a gap as the longest of the others; narrow ones as wide as is seen well
// and as the next mismatch leaves room for.
double MarkWidth(const DayReport& day, size_t mismatch, size_t split) {
  const BreakMismatch& here = day.mismatches[mismatch];
  float length = here.Lengths[split].seconds;
  if (!here.Lengths[split].found) {
    for (const auto& other : here.Lengths) length = std::max(length, other.seconds);
  }
  double room = kLeastMark;
  if (mismatch + 1 < day.mismatches.size()) {
    room = std::min(room, XOf(day.mismatches[mismatch + 1].Time) - XOf(here.Time));
  }
  return std::max(room, WidthOf(length));
}

std::string Cross(double x, double laneTop) {
  return "<text class=\"cross\" x=\"" + Units(x) + "\" y=\"" +
         Units(laneTop + (kLaneHeight - kLaneGap) / 2 + 5) + "\">\xC3\x97</text>";
}

std::string PathElement(const char* className, const std::vector<Span>& spans, double top,
                        double height) {
  if (spans.empty()) return "";
  return std::string("<path class=\"") + className + "\" d=\"" + PathOf(spans, top, height) +
         "\"/>";
}

// What a split has at the mismatches of the run.
std::string LaneMarks(const DayReport& day, const Run& run, const std::vector<Outliers>& outliers,
                      size_t split) {
  std::vector<Span> gaps;
  std::vector<Span> usualGaps;
  std::vector<Span> odd;
  std::vector<Span> even;
  for (size_t i = run.first; i < run.end; ++i) {
    const BreakMismatch& mismatch = day.mismatches[i];
    const bool isOdd = outliers[i - run.first].odd[split];
    const bool found = mismatch.Lengths[split].found;
    std::vector<Span>& spans = found ? (isOdd ? odd : even) : (isOdd ? gaps : usualGaps);
    const double x = XOf(mismatch.Time);
    AddSpan(spans, x, x + MarkWidth(day, i, split));
  }
  constexpr double kHeight = kLaneHeight - kLaneGap;
  const double top = LaneTop(split);
  return PathElement("even", even, top + kBlockInset, kHeight - 2 * kBlockInset) +
         PathElement("odd", odd, top, kHeight) +
         PathElement("gap usual", usualGaps, top + kBlockInset, kHeight - 2 * kBlockInset) +
         PathElement("gap", gaps, top + 2, kHeight - 4);
}

std::string TitleOf(const DayReport& day, const Run& run) {
  if (run.end - run.first > 1) {
    return std::to_string(run.end - run.first) + " mismatches from " + TimeText(day, run.first) +
           " to " + TimeText(day, run.end - 1);
  }
  std::string title = TimeText(day, run.first) + " does not match:";
  for (size_t i = 0; i < day.splits.size(); ++i) {
    title += (i == 0 ? " " : ", ") + HeadingName(day.splits[i]) + " " + CellText(day, run.first, i);
  }
  return title;
}

std::string FlagOf(const DayReport& day, const Run& run) {
  const double middle = XOf(day.mismatches[run.first].Time);
  const size_t count = run.end - run.first;
  const std::string sign = count > 1 ? std::to_string(count) : "\xE2\x89\xA0";
  return "<rect class=\"flag\" rx=\"4\"" +
         Box(middle - kFlagWidth / 2, kFlagsTop, kFlagWidth, kFlagHeight) +
         "/><text class=\"flag-sign\" x=\"" + Units(middle) + "\" y=\"" +
         Units(kFlagsTop + kFlagHeight - 4) + "\">" + sign + "</text>";
}

std::string BandOf(const DayReport& day, const Run& run) {
  const double begin = XOf(day.mismatches[run.first].Time);
  double end = begin;
  for (size_t i = run.first; i < run.end; ++i) {
    const double x = XOf(day.mismatches[i].Time);
    for (size_t split = 0; split < day.splits.size(); ++split) {
      end = std::max(end, x + MarkWidth(day, i, split));
    }
  }
  const double top = kFlagsTop + kFlagHeight;
  return "<rect class=\"band\"" +
         Box(begin - 2, top, end - begin + 4, LanesBottom(day.splits.size()) - top + 2) + "/>";
}

// A cross in each gap that is a split's own, where there is room for one.
std::string CrossesOf(const DayReport& day, const Run& run, const std::vector<Outliers>& outliers) {
  std::string svg;
  for (size_t split = 0; split < day.splits.size(); ++split) {
    double last = -kSignWidth;
    for (size_t i = run.first; i < run.end; ++i) {
      const BreakMismatch& mismatch = day.mismatches[i];
      const double middle = XOf(mismatch.Time) + MarkWidth(day, i, split) / 2;
      const bool ownGap = !mismatch.Lengths[split].found && outliers[i - run.first].odd[split];
      if (!ownGap || middle - last < kSignWidth) continue;
      svg += Cross(middle, LaneTop(split));
      last = middle;
    }
  }
  return svg;
}

std::string Link(const std::string& className, const std::string& target, const std::string& title,
                 const std::string& svg) {
  const std::string text = HtmlText(title);
  return "<a class=\"" + className + "\" href=\"#" + target + "\" aria-label=\"" + text +
         "\"><title>" + text + "</title>" + svg + "</a>\n";
}

std::string SilentMark(const DayReport& day, size_t lane, const BreakReport& first,
                       int32_t adverts) {
  const SplitReport& split = day.splits[lane];
  const double middle = XOf(first.time) + WidthOf(first.length.value_or(0)) / 2;
  const double bottom = LaneTop(lane) + kLaneHeight - 1;
  const std::string triangle = "<path d=\"M" + Units(middle) + " " + Units(bottom - kSilentHeight) +
                               "l" + Units(kSilentWidth / 2) + " " + Units(kSilentHeight) + "h" +
                               Units(-kSilentWidth) + "z\"/>";
  const SilentAdvert& advert = split.silentAdverts[static_cast<size_t>(first.firstSilentAdvert)];
  const std::string title = ToUtf8(advert.time) + " " + HeadingName(split) + ": " +
                            Counted(static_cast<size_t>(adverts), "advert") + " without audio";
  return Link("silent", SilentId(day, split, static_cast<size_t>(first.firstSilentAdvert)), title,
              triangle);
}

}  // namespace

std::string MismatchMarks(const DayReport& day) {
  std::string svg;
  for (const Run& run : RunsOf(day)) {
    std::string marks = BandOf(day, run);
    std::vector<Outliers> outliers;
    for (size_t i = run.first; i < run.end; ++i) outliers.push_back(OutliersOf(day.mismatches[i]));
    for (size_t split = 0; split < day.splits.size(); ++split) {
      marks += LaneMarks(day, run, outliers, split);
    }
    marks += CrossesOf(day, run, outliers) + FlagOf(day, run);
    svg += Link("mark", RowId(day, run.first), TitleOf(day, run), marks);
  }
  return svg;
}

std::string SilentMarks(const DayReport& day) {
  std::string svg;
  for (size_t lane = 0; lane < day.splits.size(); ++lane) {
    const BreakReport* first = nullptr;
    int32_t adverts = 0;
    for (const BreakReport& one : day.splits[lane].breakList) {
      if (one.silentAdverts == 0 || one.time < 0) continue;
      if (first != nullptr && std::abs(XOf(one.time) - XOf(first->time)) >= 2 * kSilentWidth) {
        svg += SilentMark(day, lane, *first, adverts);
        first = nullptr;
        adverts = 0;
      }
      if (first == nullptr) first = &one;
      adverts += one.silentAdverts;
    }
    if (first != nullptr) svg += SilentMark(day, lane, *first, adverts);
  }
  return svg;
}

}  // namespace logchecker
