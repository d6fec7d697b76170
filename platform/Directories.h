// Listing, making and entering of directories.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// Two entries of a directory whose names differ only in letter case, for a name that is neither's.
struct Lookalike {
  std::string taken;  // station path of the one that the name stands for: the first in byte order
  std::string other;  // and of the next
};

// Paths are station paths. Each call returns an error number, kNoError for success.
class Directories {
 public:
  virtual ~Directories() = default;

  // The first name that `path` stands for: its last part if such an entry exists, "." where it ends
  // in a separator or in "." and is a directory, otherwise "". Directories count only with
  // `withDirectories`. A missing entry is no error.
  virtual int32_t FirstName(const std::string& path, bool withDirectories, std::string* name) = 0;

  // Makes one directory. kPathFileAccess when the name is taken.
  virtual int32_t MakeDirectory(const std::string& path) = 0;

  // Whether the drive that a path names can be had.
  virtual int32_t ChangeDrive(const std::string& path) = 0;
  // The current directory is the process's own; a path without a root counts from it.
  virtual int32_t ChangeDirectory(const std::string& path) = 0;
  virtual int32_t CurrentDirectory(std::string* path) = 0;
  // How many characters at the beginning of `path` name its root: 3 for "C:\", 1 for "/" where the
  // system's paths have no drive, 0 where there is none.
  virtual int32_t RootLength(const std::string& path) = 0;
  // Whether a part of `path` could stand for several entries. False where the system itself takes
  // no two names that differ only in letter case.
  virtual bool FindLookalike(const std::string& path, Lookalike* lookalike) = 0;
};

}  // namespace logchecker
