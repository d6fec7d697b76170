// From the host's error codes to the program's error numbers.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// `path` is the host path that the failed call was given: a missing file is told from a missing
// folder by it.
int32_t ErrorFromErrno(int code, const std::string& path);

}  // namespace logchecker
