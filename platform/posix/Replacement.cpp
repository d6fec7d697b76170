#include "platform/posix/Replacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <filesystem>

#include "platform/ErrorNumbers.h"
#include "platform/posix/PosixErrors.h"

namespace logchecker {

namespace {

constexpr mode_t kPermissionBits = 07777;

// Where the last link of a chain points, so that the rename replaces the file and not the link. The
// result has a root, since the current directory may have changed by the time of the rename.
std::string FollowLinks(const std::string& path) {
  char real[PATH_MAX];
  if (realpath(path.c_str(), real) != nullptr) return real;
  std::string file = path;
  char target[PATH_MAX];
  const ssize_t length = readlink(path.c_str(), target, sizeof target);
  if (length > 0) {
    const size_t separator = path.find_last_of('/');
    file.assign(target, static_cast<size_t>(length));
    if (file[0] != '/' && separator != std::string::npos) {
      file.insert(0, path, 0, separator + 1);
    }
  }
  std::error_code ignored;
  return std::filesystem::absolute(file, ignored).string();
}

mode_t DefaultMode() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

}  // namespace

Replacement::~Replacement() {
  if (descriptor_ >= 0) close(descriptor_);
  if (!temporary_.empty()) unlink(temporary_.c_str());
}

int32_t Replacement::Open(const std::string& hostPath) {
  target_ = FollowLinks(hostPath);
  struct stat facts {};
  const bool exists = stat(target_.c_str(), &facts) == 0;
  if (exists && S_ISDIR(facts.st_mode)) return kPathFileAccess;
  if (exists) {
    // Refused here, as opening the file itself would be; what is only a device is written in place.
    // A pipe that nobody reads is refused too, and not waited for.
    const int target = open(target_.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
    if (target < 0) return ErrorFromErrno(errno, target_);
    if (!S_ISREG(facts.st_mode)) {
      fcntl(target, F_SETFL, fcntl(target, F_GETFL) & ~O_NONBLOCK);
      descriptor_ = target;
      return kNoError;
    }
    close(target);
  }
  std::string name = target_;
  const size_t separator = name.find_last_of('/');
  name.insert(separator == std::string::npos ? 0 : separator + 1, ".");
  name += ".XXXXXX";
  descriptor_ = mkostemp(name.data(), O_CLOEXEC);
  if (descriptor_ < 0) return ErrorFromErrno(errno, target_);
  temporary_ = name;
  fchmod(descriptor_, exists ? facts.st_mode & kPermissionBits : DefaultMode());
  return kNoError;
}

int32_t Replacement::Append(const void* data, size_t size) {
  const char* next = static_cast<const char*>(data);
  while (size > 0) {
    const ssize_t written = write(descriptor_, next, size);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return ErrorFromErrno(written < 0 ? errno : ENOSPC, target_);
    next += written;
    size -= static_cast<size_t>(written);
  }
  return kNoError;
}

int32_t Replacement::Commit() {
  int failure = 0;
  // What is renamed must be on the disk first, or a power cut could leave an empty file.
  if (!temporary_.empty() && fsync(descriptor_) != 0) failure = errno;
  if (close(descriptor_) != 0 && failure == 0) failure = errno;
  descriptor_ = -1;
  if (temporary_.empty()) return ErrorFromErrno(failure, target_);
  if (failure == 0 && rename(temporary_.c_str(), target_.c_str()) != 0) failure = errno;
  if (failure == 0) temporary_.clear();
  return ErrorFromErrno(failure, target_);
}

int32_t ReplaceFile(const std::string& hostPath, const std::string& bytes) {
  Replacement replacement;
  int32_t error = replacement.Open(hostPath);
  if (error == kNoError) error = replacement.Append(bytes.data(), bytes.size());
  if (error == kNoError) error = replacement.Commit();
  return error;
}

}  // namespace logchecker
