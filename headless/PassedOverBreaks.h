// Breaks that the comparison never came to.
#pragma once

#include <vector>

#include "headless/DayReport.h"

namespace logchecker {

// Adds a warning for each split and kind of break that is in no comparison: one at 00:00, one whose
// time can't be read, a second one in the same minute, one behind a later break that no other split
// shares, and all of a day that begins at 00:00 in every split. `timesCompared` are those of the
// comparison, ascending, in seconds.
void TellPassedOverBreaks(DayReport& report, const std::vector<float>& timesCompared);

}  // namespace logchecker
