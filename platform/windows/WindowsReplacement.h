// New content that takes the place of a file's old content whole, or not at all.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/FileTable.h"

namespace logchecker {

// Opens `path` for that. What is written lies beside it until Commit renames it; the new file has
// the access list and the marks of the old one. A file of several names, one behind a link, or one
// whose folder takes no new file gets the new content in its place on Commit. A device is written
// as the bytes come. Returns an error number.
int32_t OpenWindowsReplacement(const std::string& path, std::unique_ptr<HostFile>* file);

}  // namespace logchecker
