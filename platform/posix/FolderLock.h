// One program at a time at the files of a folder.
#pragma once

#include <string>

namespace logchecker {

// Held for as long as it lives, against other processes and other locks of this one. Leaves nothing
// behind, whatever ends the program. Where the folder can't be locked, or another program keeps it
// locked for longer than a change of a file can take, the work goes on without it.
class FolderLock {
 public:
  // In milliseconds. Far longer than any disk takes for a file of settings, so that only a program
  // that stands still is passed over.
  static constexpr int kPatience = 10000;

  // Of the folder that `hostPath` lies in. Once a wait was in vain the next ones look once, until
  // one finds the folder free: a hundred keys don't take a hundred waits.
  explicit FolderLock(const std::string& hostPath, int patience = kPatience);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  bool held() const { return held_; }

 private:
  int folder_;
  bool held_ = false;
};

}  // namespace logchecker
