// One program at a time at the files of a folder.
#pragma once

#include <string>

namespace logchecker {

// Held for as long as it lives, against other processes and other locks of this one. Leaves nothing
// behind, whatever ends the program. Where the folder can't be locked, or another program keeps it
// locked for longer than a change of a file can take, the work goes on without it.
class FolderLock {
 public:
  // The folder that `hostPath` lies in.
  explicit FolderLock(const std::string& hostPath);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

 private:
  int folder_;
};

}  // namespace logchecker
