// Files of the system behind the table of file numbers.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/FileTable.h"

namespace logchecker {

// Opens `path` in one of the modes of the file table. Returns an error number.
int32_t OpenWindowsFile(HostMode mode, const std::string& path, std::unique_ptr<HostFile>* file);

// The number of an open of `path` that has just failed.
int32_t OpenErrorNumber(const std::string& path);

}  // namespace logchecker
