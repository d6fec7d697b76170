// Names in a folder without regard to letter case.
#pragma once

#include <string>

namespace logchecker {

// Finds the entry of `hostFolder` whose name equals `name` but for letter case, with "?" in `name`
// for a character that the code page can't hold; of several the first in byte order. A folder's
// names are read once and kept for as long as the folder itself has not changed, since a store can
// hold a file for each of its carts.
bool FindFoldedName(const std::string& hostFolder, const std::string& name, std::string* found);

}  // namespace logchecker
