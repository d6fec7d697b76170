// New content for a file that must stay the same file.
#pragma once

#include <string>

namespace logchecker {

// Makes `bytes` the whole content of the regular file open as `descriptor`. The room is taken
// before the first old byte goes, so that a full disk leaves the old content; what fails later puts
// it back where the file can be read. Returns the system's error, 0 for success.
int WriteInPlace(int descriptor, const std::string& bytes);

// All that the file holds, from its beginning. Returns the system's error, 0 for success.
int ReadAll(int descriptor, std::string* bytes);

}  // namespace logchecker
