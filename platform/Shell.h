// Copying and moving with progress, well-known folders, short names.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace logchecker {

struct FileOperation {
  std::string from;
  std::string to;  // a file, or a directory that the file goes into
  std::string progressTitle;
  intptr_t ownerWindow = 0;
  bool move = false;
  bool confirm = false;  // ask before replacing and before making folders
  // Where the system has no windows of its own for it: is told of each part that is done, and asked
  // before a file is replaced. Either may be empty.
  std::function<void(int64_t done, int64_t total)> progress;
  std::function<bool(const std::string& file)> mayReplace;
};

class Shell {
 public:
  virtual ~Shell() = default;

  // 0 on success, otherwise the number that the system gives. A failed copy leaves no part of a
  // file.
  virtual int32_t Run(const FileOperation& operation) = 0;
  // A well-known folder by its number in the system's shell; 5 is the user's documents folder.
  virtual int32_t SpecialFolder(int32_t folderNumber, std::string* path) = 0;
  // The short (8.3) form of a path, or the path itself where the system has none.
  virtual int32_t ShortPath(const std::string& path, std::string* shortPath) = 0;
};

}  // namespace logchecker
