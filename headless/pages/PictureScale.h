// Where things stand in the picture of a day: hours across, a lane a split. In units of the
// picture, of which one is a pixel at the picture's own size.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace logchecker {

inline constexpr double kNamesWidth = 150;
inline constexpr double kHourWidth = 42;
inline constexpr double kDayWidth = 24 * kHourWidth;
inline constexpr double kPictureWidth = kNamesWidth + kDayWidth + 42;
inline constexpr double kFlagsTop = 24;  // the row of flags, below the hours
inline constexpr double kFlagHeight = 18;
inline constexpr double kFlagWidth = 24;
inline constexpr double kLanesTop = 48;
inline constexpr double kLaneHeight = 34;
inline constexpr double kLaneGap = 6;
inline constexpr double kBlockInset = 5;    // of a quiet block, above and below it
inline constexpr double kLeastBlock = 1.6;  // narrower could not be seen
inline constexpr double kLegendHeight = 34;

// The place of a time of day and the width of a length, both in seconds.
double XOf(float time);
double WidthOf(float length);
double LaneTop(size_t lane);
double LanesBottom(size_t lanes);

// A number of units for an attribute, with no more than two decimals.
std::string Units(double value);

// From here to there across.
struct Span {
  double begin = 0;
  double end = 0;
};

// Adds a span that begins no earlier than the last one; one that touches it makes it longer.
void AddSpan(std::vector<Span>& spans, double begin, double end);

// The spans as boxes of one path: the value of its "d".
std::string PathOf(const std::vector<Span>& spans, double top, double height);

// x, y, width and height as attributes, each with a blank before it.
std::string Box(double x, double y, double width, double height);

}  // namespace logchecker
