// A day as a picture.
#pragma once

#include <string>

#include "headless/DayReport.h"

namespace logchecker {

// Inline SVG: 24 hours across, a lane a split, a block a break by its time and length. What matches
// is quiet. Each mismatch, or several that stand too close to be told apart, is a link to its row,
// with what each split has there; each break with adverts without audio a link to theirs. The rest
// is one image with a title and a description. For a day that could be checked.
std::string DayPicture(const DayReport& day);

}  // namespace logchecker
