// What must not stay behind when the program is ended by its console.
#pragma once

#include <string>

namespace logchecker {

// A file that is removed in that case, from here on until it is released. `path` is a full path.
void HoldVanishingFile(const std::string& path);
void ReleaseVanishingFile(const std::string& path);

}  // namespace logchecker
