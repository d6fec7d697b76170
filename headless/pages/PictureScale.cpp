#include "headless/pages/PictureScale.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace logchecker {

namespace {

constexpr double kSecondsAnHour = 3600;
constexpr double kSecondsADay = 24 * kSecondsAnHour;

}  // namespace

double XOf(float time) {
  const double seconds = std::clamp<double>(time, 0, kSecondsADay);
  return kNamesWidth + seconds / kSecondsAnHour * kHourWidth;
}

double WidthOf(float length) {
  if (!std::isfinite(length)) return kLeastBlock;
  return std::clamp<double>(length / kSecondsAnHour * kHourWidth, kLeastBlock, kDayWidth);
}

double LaneTop(size_t lane) { return kLanesTop + static_cast<double>(lane) * kLaneHeight; }

double LanesBottom(size_t lanes) { return LaneTop(lanes) - kLaneGap; }

std::string Units(double value) {
  const auto hundredths = static_cast<int64_t>(std::lround(std::abs(value) * 100));
  std::string text = value < 0 && hundredths > 0 ? "-" : "";
  text += std::to_string(hundredths / 100);
  const auto rest = hundredths % 100;
  if (rest == 0) return text;
  text += "." + std::to_string(rest / 10);
  if (rest % 10 != 0) text += std::to_string(rest % 10);
  return text;
}

void AddSpan(std::vector<Span>& spans, double begin, double end) {
  if (!spans.empty() && begin >= spans.back().begin && begin <= spans.back().end) {
    spans.back().end = std::max(spans.back().end, end);
  } else {
    spans.push_back({begin, end});
  }
}

std::string PathOf(const std::vector<Span>& spans, double top, double height) {
  std::string path;
  for (const Span& span : spans) {
    const double width = span.end - span.begin;
    path += "M" + Units(span.begin) + " " + Units(top) + "h" + Units(width) + "v" + Units(height) +
            "h" + Units(-width) + "z";
  }
  return path;
}

std::string Box(double x, double y, double width, double height) {
  return " x=\"" + Units(x) + "\" y=\"" + Units(y) + "\" width=\"" + Units(width) + "\" height=\"" +
         Units(height) + "\"";
}

}  // namespace logchecker
