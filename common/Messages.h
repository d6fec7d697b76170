// The one "There was a problem" message.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// Builds the message around `action`, a clause such as "opening the file " and a path, shows it
// unless `quiet`, and returns it. With an `errorNumber` it gives that error's text; the number
// behind it is that of the current error state, which differs when the caller has cleared the state
// in between: this is meant.
std::string ShowErrorMessage(const std::string& action, int32_t errorNumber, bool quiet);

}  // namespace logchecker
