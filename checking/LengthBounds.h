// What passes for the same length as the shortest one.
#pragma once

#include <cmath>

#include "common/GeneralSettings.h"

namespace logchecker {

// All lengths are held against the shortest one, in seconds; a length on a bound passes. The bounds
// are rounded to single precision, and a length that is no finite number fails them.
struct LengthBounds {
  explicit LengthBounds(float shortest) {
    const double tolerance = gGeneralSettings.BreakDifferenceMS / 1000.0;
    lower = static_cast<float>(shortest - tolerance);
    upper = static_cast<float>(tolerance + shortest);
  }

  bool Hold(float length) const {
    return std::isfinite(length) && lower <= length && upper >= length;
  }

  float lower;
  float upper;
};

}  // namespace logchecker
