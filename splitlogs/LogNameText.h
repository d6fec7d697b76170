// The name of a log from the parts that the settings give.
#pragma once

#include <string>

namespace logchecker {

// The date's text with the fixed text before it, or behind it with `suffix`, then "." and the
// extension.
std::string LogNameText(const std::string& dateText, const std::string& preSuffix, bool suffix,
                        const std::string& extension);

}  // namespace logchecker
