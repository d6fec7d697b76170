// The check of one station of many, in a process of its own.
#pragma once

#include <cstdint>

#include "headless/CommandLine.h"
#include "headless/ReportReader.h"
#include "headless/StationList.h"
#include "platform/Processes.h"

namespace logchecker {

// How to start it. The date stands in it whatever the options say of one: every station is asked
// for the same days, though midnight comes in between.
ChildOrder OrderFor(const ListedStation& station, const Options& options);

// What an ended child found, or why it found nothing, as a half sentence behind the station's name.
ReportReading JudgeChild(const ListedStation& station, const Options& options, int32_t child,
                         const ChildEnd& end);

}  // namespace logchecker
