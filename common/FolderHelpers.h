// Folders: is it there, and make every missing one of a path.
#pragma once

#include <string>

namespace logchecker {

// True when a directory listing of the path finds anything, so a plain file of that name answers
// true as well: callers use it for paths that they expect to be folders. A failing listing gives
// false and stands in the error state. A bare share and a bare drive are listed with "\" behind
// them.
bool DirectoryExists(std::string path);

// Makes every missing folder of a path and says whether the path stands. A network path ("\\...")
// is made in one step, and answers false when it had to be made: this is meant. Failures are shown
// unless `quiet`. The current directory stays as it was.
bool CreatePath(const std::string& path, bool quiet);

}  // namespace logchecker
