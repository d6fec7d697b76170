// What tells, without a read, that what a path leads to has changed.
#pragma once

#include <cstdint>

namespace logchecker {

// Two stamps of a path that are equal mean the same file with the same content, unless it was
// written twice within the grain of the system's time stamps (see kCoarsestStamp). Of a directory
// it tells which one it is and who may enter it, not what it holds.
struct FileStamp {
  int32_t error = 0;  // why there is none, as an error number; the rest is 0 then
  bool isDirectory = false;
  int64_t size = 0;      // bytes
  int64_t modified = 0;  // of the content, in the system's own units
  int64_t changed = 0;   // of the content, the name or the rights, where the system has that
  uint64_t device = 0;   // with `file` the file's identity
  uint64_t file = 0;
  uint64_t rights = 0;

  bool operator==(const FileStamp&) const = default;
};

// Seconds: the grain of the coarsest time stamps that file systems have.
inline constexpr double kCoarsestStamp = 2;

}  // namespace logchecker
