// The check of one day.
#pragma once

#include <cstdint>

#include "headless/DayReport.h"

namespace logchecker {

// Loads the day into the active splits, starting with all logs closed so that no day is read from
// another's log, checks it, and notes what the comparison passed over. A store part that an advert
// needs and that can't be read is trouble, since a cart in it would pass for one without audio.
DayReport CheckDay(int32_t day);

}  // namespace logchecker
