// What stands out in the picture of a day, as links.
#pragma once

#include <string>

#include "headless/DayReport.h"

namespace logchecker {

// For each mismatch a link to its row: a flag above the lanes, a band across them, and in each lane
// the break or the gap. Those whose flags would overlap share one.
std::string MismatchMarks(const DayReport& day);

// For each break with adverts without audio a link to them, below its place in the lane.
std::string SilentMarks(const DayReport& day);

}  // namespace logchecker
