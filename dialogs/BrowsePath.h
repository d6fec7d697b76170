// The folder chooser's plain half.
#pragma once

#include <string>

namespace logchecker {

// The folder that the chooser starts in, as its caller gave it.
extern std::string gBrowseStartPath;

// What the chooser makes of the folder that was picked: up to its first NUL, and the root of a
// drive as "C:", without its backslash.
std::string ChosenFolder(const std::string& path);

}  // namespace logchecker
