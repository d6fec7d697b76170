// The file behind a link.
#pragma once

#include <string>

namespace logchecker {

// Where the last link of a chain points, whether or not a file is there, as a path with a root: the
// current directory may change before it is used. A chain that never ends gives one of its links.
std::string FollowLinks(const std::string& hostPath);

// The folder of a path that has a root, with a separator at its end.
std::string FolderOf(const std::string& hostPath);

// Whether `hostPath` still names the file that is open as `descriptor`, and not through a link.
bool IsNameOf(const std::string& hostPath, int descriptor);

}  // namespace logchecker
