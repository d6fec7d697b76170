#include "platform/posix/FolderLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <ctime>

namespace logchecker {

namespace {

using Clock = std::chrono::steady_clock;

// Short beside any disk's write: a program that writes key after key lets go of the folder only for
// moments, and one that looks seldom would miss them all.
constexpr timespec kPause = {0, 50000};  // in nanoseconds

std::atomic<bool> gLastWaitWasInVain(false);

bool LockWithin(int folder, int patience) {
  const Clock::time_point end = Clock::now() + std::chrono::milliseconds(patience);
  while (flock(folder, LOCK_EX | LOCK_NB) != 0) {
    const bool taken = errno == EWOULDBLOCK || errno == EINTR;
    if (!taken || Clock::now() >= end) return false;
    nanosleep(&kPause, nullptr);
  }
  return true;
}

}  // namespace

FolderLock::FolderLock(const std::string& hostPath, int patience) {
  const size_t separator = hostPath.find_last_of('/');
  const std::string folder =
      separator == std::string::npos ? "." : hostPath.substr(0, separator + 1);
  folder_ = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder_ < 0) return;
  if (gLastWaitWasInVain) patience = 0;
  held_ = LockWithin(folder_, patience);
  gLastWaitWasInVain = !held_;
}

FolderLock::~FolderLock() {
  if (folder_ >= 0) close(folder_);
}

}  // namespace logchecker
