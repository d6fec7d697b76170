// Names in a folder without regard to letter case.
#pragma once

#include <string>

namespace logchecker {

// Finds the entry of `hostFolder` whose name equals `name` but for letter case, with "?" in `name`
// for a character that the code page can't hold; of several the first in byte order, with the next
// in `other`. In a folder that can be entered and not listed, `name` in lower case is all that is
// tried. A folder's names are read once and kept for as long as the folder itself has not changed,
// since a store can hold a file for each of its carts.
bool FindFoldedName(const std::string& hostFolder, const std::string& name, std::string* found,
                    std::string* other);

}  // namespace logchecker
