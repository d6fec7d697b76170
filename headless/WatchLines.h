// What a watch tells, a line an event.
#pragma once

#include <string>

#include "headless/ReportDifference.h"

namespace logchecker {

// "2027-01-15 14:03:21 2027-01-16 10:00 does not match: North 1:50.00, South Not Found": when it
// was told, in local time, the day, and what is new. UTF-8, with its line end.
std::string TextLine(const WatchEvent& event);

// The same as one line of JSON: "at" (UTC), "event" (its name), "date", "split" and "time" where
// the event has them, else null, "kind" for a warning, and "text".
std::string JsonLine(const WatchEvent& event);

}  // namespace logchecker
