#include "dialogs/HourDialRules.h"

#include <cmath>
#include <numbers>

#include "common/ErrorState.h"
#include "common/Numbers.h"

namespace logchecker {

namespace {

constexpr double kRadiusShare = 0.49;  // of the inner width
constexpr double kMorningShare = 0.5;  // of the radius
constexpr int32_t kHoursOnFace = 12;
constexpr double kDegreesAnHour = 30;

// In degrees clockwise from twelve o'clock; `ratio` is dy / dx, with dy upwards.
double AngleOfPress(double dx, double dy, double ratio) {
  if (dy == 0) return dx > 0 ? 90 : -90;
  const double degrees = std::atan(ratio) * 180 / std::numbers::pi;
  return dx > 0 ? 90 - degrees : 270 - degrees;
}

}  // namespace

double DialRadius(double innerWidth) { return innerWidth * kRadiusShare; }

std::optional<int32_t> HourOfPress(double x, double y, double width, double height) {
  const double dx = RoundHalfEven(x - width / 2);
  const double dy = RoundHalfEven(height / 2 - y);
  const double distance = RoundHalfEven(std::sqrt(RoundHalfEven(dx * dx + dy * dy)));
  if (dx == 0) throw RunTimeError(kDivisionByZero, "the hour dial");
  const double ratio = dy / dx;
  const double radius = DialRadius(width);
  if (distance <= 0 || distance > radius) return std::nullopt;
  auto hour = static_cast<int32_t>(std::floor(AngleOfPress(dx, dy, ratio) / kDegreesAnHour));
  if (distance > radius * kMorningShare) hour += kHoursOnFace;
  return hour;
}

std::optional<HourWedge> WedgeOfHour(int32_t hour) {
  if (hour < 0) return std::nullopt;
  const int32_t onFace = hour % kHoursOnFace;
  // Sectors count anticlockwise from three o'clock. A start at exactly 0 would lose the edge line.
  double sector = onFace <= 2 ? 2 - onFace : 14 - onFace;
  if (sector == 0) sector = 0.00001;
  return HourWedge{hour >= kHoursOnFace ? 1.0 : kMorningShare, sector / kHoursOnFace,
                   (sector + 1) / kHoursOnFace};
}

}  // namespace logchecker
