#include "platform/posix/FolderLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <ctime>
#include <utility>

#include "platform/Waiting.h"
#include "platform/posix/FollowLinks.h"

namespace logchecker {

namespace {

using SteadyClock = std::chrono::steady_clock;

// Short beside any disk's write: a program that writes key after key lets go of the folder only for
// moments, and one that looks seldom would miss them all.
constexpr timespec kPause = {0, 50000};  // in nanoseconds
// A wait that is shorter than this is nothing to show.
constexpr std::chrono::milliseconds kUnnoticed(100);

std::atomic<bool> gLastWaitWasInVain(false);

// The sign that a wait gives once it can be noticed.
class Sign {
 public:
  Sign() = default;
  ~Sign() {
    if (given_) GiveWaitSign(false);
  }
  Sign(const Sign&) = delete;
  Sign& operator=(const Sign&) = delete;

  void Look() {
    if (given_ || SteadyClock::now() - start_ < kUnnoticed) return;
    given_ = true;
    GiveWaitSign(true);
  }

 private:
  SteadyClock::time_point start_ = SteadyClock::now();
  bool given_ = false;
};

enum class Outcome { kLocked, kTaken, kImpossible };

Outcome LockUntil(int file, SteadyClock::time_point end) {
  Sign sign;
  while (flock(file, LOCK_EX | LOCK_NB) != 0) {
    if (errno != EWOULDBLOCK && errno != EINTR) return Outcome::kImpossible;
    if (SteadyClock::now() >= end) return Outcome::kTaken;
    sign.Look();
    nanosleep(&kPause, nullptr);
  }
  return Outcome::kLocked;
}

// Some file systems lock only what is open for writing.
int OpenToLock(const std::string& path) {
  constexpr int kFlags = O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW;
  const int both = open(path.c_str(), O_RDWR | kFlags);
  return both >= 0 ? both : open(path.c_str(), O_RDONLY | kFlags);
}

}  // namespace

FolderLock::FolderLock(const std::string& hostPath, int patience) {
  if (gLastWaitWasInVain) patience = 0;
  const Moment end = SteadyClock::now() + std::chrono::milliseconds(patience);
  const std::string file = FollowLinks(hostPath);
  // Always in this order, or two programs could wait for each other.
  const bool free = LockFolder(file, end) && LockFile(file, end);
  held_ = free && (folder_ >= 0 || file_ >= 0);
  gLastWaitWasInVain = !free;
}

// Both are false where another program kept the lock to the end, and true where there is nothing
// that can be locked.
bool FolderLock::LockFolder(const std::string& file, Moment end) {
  folder_ = open(FolderOf(file).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder_ < 0) return true;
  const Outcome outcome = LockUntil(folder_, end);
  if (outcome != Outcome::kLocked) close(std::exchange(folder_, -1));
  return outcome != Outcome::kTaken;
}

bool FolderLock::LockFile(const std::string& file, Moment end) {
  while ((file_ = OpenToLock(file)) >= 0) {
    const Outcome outcome = LockUntil(file_, end);
    // A file that was replaced in the meantime locks nobody out any more.
    if (outcome == Outcome::kLocked && IsNameOf(file, file_)) return true;
    close(std::exchange(file_, -1));
    if (outcome != Outcome::kLocked) return outcome == Outcome::kImpossible;
  }
  return true;
}

FolderLock::~FolderLock() {
  if (file_ >= 0) close(file_);
  if (folder_ >= 0) close(folder_);
}

}  // namespace logchecker
