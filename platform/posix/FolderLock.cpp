#include "platform/posix/FolderLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

namespace logchecker {

namespace {

constexpr int kAttempts = 1000;
constexpr timespec kPause = {0, 1000000};  // a millisecond

}  // namespace

FolderLock::FolderLock(const std::string& hostPath) {
  const size_t separator = hostPath.find_last_of('/');
  const std::string folder =
      separator == std::string::npos ? "." : hostPath.substr(0, separator + 1);
  folder_ = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder_ < 0) return;
  for (int i = 0; i < kAttempts && flock(folder_, LOCK_EX | LOCK_NB) != 0; ++i) {
    if (errno != EWOULDBLOCK && errno != EINTR) return;
    nanosleep(&kPause, nullptr);
  }
}

FolderLock::~FolderLock() {
  if (folder_ >= 0) close(folder_);
}

}  // namespace logchecker
