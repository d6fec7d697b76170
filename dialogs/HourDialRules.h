// The round hour dial, as arithmetic: a 12-hour face whose inner half of the radius means the
// morning and whose outer part the afternoon.
#pragma once

#include <cstdint>
#include <optional>

namespace logchecker {

// The dial's radius for its inner width, in the same unit.
double DialRadius(double innerWidth);

// The hour that a press at (x, y) means, from the upper left corner of the dial; nothing for a
// press outside the disc or in its very centre. On the horizontal line left of the centre the hour
// is -3, or 9 on the outer ring: this is meant. Throws RunTimeError 11 for a press on the vertical
// line through the centre.
std::optional<int32_t> HourOfPress(double x, double y, double width, double height);

// The slice that shows an hour: its radius as a share of the dial's, and its edges in turns counted
// anticlockwise from three o'clock.
struct HourWedge {
  double radiusShare = 0;
  double from = 0;
  double to = 0;
};

// Nothing for an hour below 0.
std::optional<HourWedge> WedgeOfHour(int32_t hour);

}  // namespace logchecker
