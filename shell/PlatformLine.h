// The line that says on what system the program runs.
#pragma once

#include <string>

#include "platform/SystemFacts.h"

namespace logchecker {

// The name of the system, with its service pack behind it in brackets. `designText` stands for a
// version of Windows that has no name here; outside Windows the system's own description does.
std::string PlatformLine(const OSVERSIONINFO& version, const std::string& designText);

}  // namespace logchecker
