#include "headless/pages/DayPicture.h"

#include <algorithm>
#include <array>
#include <vector>

#include "headless/DayName.h"
#include "headless/pages/DayWords.h"
#include "headless/pages/Html.h"
#include "headless/pages/PictureMarks.h"
#include "headless/pages/PictureScale.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

// Longer names are cut by the lane's edge too, since characters differ in width.
constexpr size_t kLaneCharacters = 20;
constexpr size_t kTitleCharacters = 1000;
constexpr double kBlockHeight = kLaneHeight - kLaneGap - 2 * kBlockInset;

std::string Hours(double bottom) {
  std::string lines;
  std::string texts;
  for (int hour = 0; hour <= 24; ++hour) {
    const double x = kNamesWidth + hour * kHourWidth;
    lines += "M" + Units(x) + " " + Units(kLanesTop - 4) + "V" + Units(bottom + 4);
    if (hour % 2 != 0) continue;
    texts += "<text x=\"" + Units(x) + "\" y=\"15\">" + (hour < 10 ? "0" : "") +
             std::to_string(hour) + ":00</text>";
  }
  return "<path class=\"hours\" stroke=\"#d5dadf\" d=\"" + lines + "\"/>\n<g class=\"axis\">" +
         texts + "</g>\n";
}

std::string LaneName(const SplitReport& split, double top) {
  const std::string name = ToUtf8(split.name);
  return "<svg" + Box(0, top, kNamesWidth - 6, kLaneHeight - kLaneGap) + "><title>" +
         HtmlText(Shortened(name, kTitleCharacters)) + "</title><text class=\"name\" x=\"0\" y=\"" +
         Units(kLaneHeight / 2 + 2) + "\" direction=\"ltr\" unicode-bidi=\"isolate\">" +
         HtmlText(Shortened(name, kLaneCharacters)) + "</text></svg>";
}

// Blocks that touch are one: at the width of a day they can't be told apart.
std::string Blocks(const SplitReport& split, double top) {
  std::vector<Span> compared;
  std::vector<Span> passedOver;
  for (const BreakReport& one : split.breakList) {
    if (one.time < 0) continue;
    const double width = WidthOf(one.length.value_or(0));
    // One at 24:00 stands at the day's end.
    const double x = std::min(XOf(one.time), kNamesWidth + kDayWidth - kLeastBlock);
    AddSpan(one.length ? compared : passedOver, x, x + width);
  }
  std::string svg;
  if (!compared.empty()) {
    svg += "<path class=\"blocks\" fill=\"#64809c\" d=\"" +
           PathOf(compared, top + kBlockInset, kBlockHeight) + "\"/>";
  }
  if (!passedOver.empty()) {
    svg += "<path class=\"passed\" fill=\"none\" stroke=\"#6f4a00\" d=\"" +
           PathOf(passedOver, top + kBlockInset, kBlockHeight) + "\"/>";
  }
  return svg;
}

std::string Lane(const SplitReport& split, size_t lane) {
  const double top = LaneTop(lane);
  return LaneName(split, top) + "<rect class=\"lane\" fill=\"#eceff2\"" +
         Box(kNamesWidth, top, kDayWidth, kLaneHeight - kLaneGap) + "/>" + Blocks(split, top) +
         "\n";
}

// What each kind of mark means, with one of it before the words.
std::string Legend(double top) {
  struct Entry {
    const char* className;
    double height;
    const char* words;
  };
  constexpr std::array<Entry, 5> kEntries = {{{"blocks", kBlockHeight, "a break"},
                                              {"odd", 28, "differs from the others"},
                                              {"even", kBlockHeight, "the others then"},
                                              {"gap", 24, "no break here"},
                                              {"passed", kBlockHeight, "not compared"}}};
  std::string svg = "<g class=\"legend\">";
  double x = kNamesWidth;
  for (const Entry& entry : kEntries) {
    const std::vector<Span> sample = {{x, x + 6}};
    svg += std::string("<path class=\"") + entry.className + "\" d=\"" +
           PathOf(sample, top + 14 - entry.height / 2, entry.height) + "\"/><text x=\"" +
           Units(x + 13) + "\" y=\"" + Units(top + 18) + "\">" + entry.words + "</text>";
    x += 175;
  }
  return svg + "<path class=\"mute\" d=\"M" + Units(x) + " " + Units(top + 18) +
         "h10l-5 -8z\"/><text x=\"" + Units(x + 15) + "\" y=\"" + Units(top + 18) +
         "\">without audio</text></g>\n";
}

std::string Description(const DayReport& day) {
  std::string text =
      "A lane for each of " + Counted(day.splits.size(), "split") +
      ", 24 hours across, a block for each break. " + Counted(day.mismatches.size(), "break time") +
      " marked that " + (day.mismatches.size() == 1 ? "does" : "do") + " not match. " +
      Counted(SilentAdvertsOf(day), "advert") + " without audio. The tables below say the same.";
  return text;
}

}  // namespace

std::string DayPicture(const DayReport& day) {
  const double bottom = LanesBottom(day.splits.size());
  const double height = bottom + kLegendHeight + 8;
  const std::string id = DayId(day);
  std::string svg = "<svg class=\"day-picture\" viewBox=\"0 0 " + Units(kPictureWidth) + " " +
                    Units(height) + "\" width=\"" + Units(kPictureWidth) + "\" height=\"" +
                    Units(height) + "\">\n<g role=\"img\" " + "aria-labelledby=\"" + id + "-pt " +
                    id + "-pd\">\n<title id=\"" + id + "-pt\">The ad breaks of " +
                    DayName(day.day) + "</title>\n<desc id=\"" + id + "-pd\">" + Description(day) +
                    "</desc>\n";
  std::string lanes;
  for (size_t i = 0; i < day.splits.size(); ++i) lanes += Lane(day.splits[i], i);
  svg += lanes + Hours(bottom) + Legend(bottom + 10) + "</g>\n";
  return svg + MismatchMarks(day) + SilentMarks(day) + "</svg>\n";
}

}  // namespace logchecker
