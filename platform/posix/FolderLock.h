// One program at a time at the files of a folder.
#pragma once

#include <chrono>
#include <string>

namespace logchecker {

// Held for as long as it lives, against other processes and other locks of this one. Leaves nothing
// behind, whatever ends the program. Where nothing can be locked, or another program keeps it
// locked for longer than a change of a file can take, the work goes on without it. A person is
// given a sign while it waits (see Waiting.h).
class FolderLock {
 public:
  // In milliseconds. Far longer than any disk takes for a file of settings, so that only a program
  // that stands still is passed over.
  static constexpr int kPatience = 10000;

  // Of the folder that the file behind `hostPath` lies in, whatever links lead there, and of the
  // file itself, which can be locked in a folder that can't and has one lock for all its names. Any
  // user who may read them may lock them. Once a wait was in vain the next ones look once, until
  // one finds them free: a hundred keys don't take a hundred waits.
  explicit FolderLock(const std::string& hostPath, int patience = kPatience);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  bool held() const { return held_; }

 private:
  using Moment = std::chrono::steady_clock::time_point;

  bool LockFolder(const std::string& file, Moment end);
  bool LockFile(const std::string& file, Moment end);

  int folder_ = -1;
  int file_ = -1;
  bool held_ = false;
};

}  // namespace logchecker
