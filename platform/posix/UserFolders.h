// Where the user's own files lie.
#pragma once

#include <string>

namespace logchecker {

// The user's configuration folder: XDG_CONFIG_HOME, which counts only as an absolute path, else
// .config in the home.
std::string UserConfigFolder();

}  // namespace logchecker
