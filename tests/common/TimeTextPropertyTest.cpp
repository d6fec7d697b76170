#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <cmath>

#include "common/TimeText.h"

namespace logchecker {
namespace {

std::string PartPicture(long value, bool bare) {
  if (bare) return value == 0 ? "" : std::to_string(value);
  return (value < 10 ? "0" : "") + std::to_string(value);
}

std::string AtLeastTwo(std::string text) {
  while (text.size() < 2) text.insert(0, " ");
  return text;
}

// The rules of the display one by one, as they are told.
std::string PlainFormat(double v, int mask) {
  std::string hours = "--";
  std::string minutes = "--";
  std::string seconds = "--";
  std::string hundredths = "--";
  const int units = mask % 10;
  if (v >= 0 && v <= 86400) {
    if (units >= 2 && mask % 100 < 10) v = std::nearbyint(v);
    if (units >= 2 && mask % 100 / 10 == 2) v = std::ceil(v);
    const long hh = std::lround(std::nearbyint(v * 100)) % 100;
    const long s = static_cast<long>(std::floor(v)) % 60;
    const long m = static_cast<long>(std::floor(v / 60)) % 60;
    const long h = static_cast<long>(std::floor(v / 3600)) % 3600;
    const bool none = mask == 100;
    const bool drop = mask > 100;
    hundredths = none ? "" : PartPicture(hh, drop && v < 1);
    seconds = none ? "" : PartPicture(s, drop && v < 60);
    minutes = none ? "" : PartPicture(m, drop && v < 3600);
    hours = none ? "" : PartPicture(h, drop);
  }
  hours = AtLeastTwo(hours);
  minutes = AtLeastTwo(minutes);
  seconds = AtLeastTwo(seconds);
  hundredths = AtLeastTwo(hundredths);
  std::string r;
  if ((units == 1 || units == 2 || units == 4) && (hours != "  " || mask < 200)) r += hours + ":";
  r += minutes;
  if (units != 4 && (seconds != "  " || mask < 200)) r += ":" + seconds;
  if (units == 0 || units == 1) r += "." + hundredths;
  return r;
}

RC_GTEST_PROP(FormatTimeDisplayProperty, EqualsThePlainRules, ()) {
  const int mask = *rc::gen::inRange(0, 400);
  const int whole = *rc::gen::inRange(-10, 86500);
  const int part = *rc::gen::inRange(0, 1000);
  const double seconds = whole + part / 1000.0;
  RC_ASSERT(FormatTimeDisplay(seconds, mask) == PlainFormat(seconds, mask));
}

RC_GTEST_PROP(ParseTimeDisplayProperty, TakesBackWhatWasShown, ()) {
  const int seconds = *rc::gen::inRange(0, 86401);
  RC_ASSERT(ParseTimeDisplay(FormatTimeDisplay(seconds, 1), 1) == seconds);
  RC_ASSERT(ParseTimeDisplay(FormatTimeDisplay(seconds, 2), 2) == seconds);
  RC_ASSERT(ParseTimeDisplay(FormatTimeDisplay(seconds % 3600, 3), 3) == seconds % 3600);
  RC_ASSERT(ParseTimeDisplay(FormatTimeDisplay(seconds / 60 * 60, 4), 4) == seconds / 60 * 60);
}

}  // namespace
}  // namespace logchecker
