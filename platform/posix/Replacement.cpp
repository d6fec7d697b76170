#include "platform/posix/Replacement.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/ErrorNumbers.h"
#include "platform/posix/FileAttributes.h"
#include "platform/posix/FollowLinks.h"
#include "platform/posix/InPlace.h"
#include "platform/posix/PosixErrors.h"

namespace logchecker {

namespace {

constexpr mode_t kNewFileMode = 0666;  // the user's mask and the folder's own list take from it
constexpr mode_t kHiddenMode = 0600;   // until it has the old file's

// Refused as opening the file itself would be. Being read too it can be put back after a failure. A
// pipe that nobody reads is refused, and not waited for.
int OpenToWrite(const std::string& path, bool isRegular) {
  constexpr int kFlags = O_CLOEXEC | O_NONBLOCK;
  const int both = isRegular ? open(path.c_str(), O_RDWR | kFlags) : -1;
  return both >= 0 ? both : open(path.c_str(), O_WRONLY | kFlags);
}

int WriteAll(int file, const char* next, size_t size) {
  while (size > 0) {
    const ssize_t written = write(file, next, size);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return written < 0 ? errno : ENOSPC;
    next += written;
    size -= static_cast<size_t>(written);
  }
  return 0;
}

// A folder where nobody may take another's file away, a file that is mounted on its own: the file
// may be written all the same.
bool MayBeWrittenInPlace(int error) {
  return error == EPERM || error == EACCES || error == EBUSY || error == EXDEV || error == EROFS;
}

bool HasOtherNames(int file) {
  struct stat facts {};
  return fstat(file, &facts) != 0 || facts.st_nlink != 1;
}

}  // namespace

Replacement::~Replacement() {
  if (old_ >= 0) close(old_);
}

int32_t Replacement::Open(const std::string& hostPath) {
  target_ = FollowLinks(hostPath);
  struct stat facts {};
  if (stat(target_.c_str(), &facts) == 0) {
    if (S_ISDIR(facts.st_mode)) return kPathFileAccess;
    isRegular_ = S_ISREG(facts.st_mode);
    return OpenOld();
  }
  if (errno != ENOENT) return ErrorFromErrno(errno, target_);
  return ErrorFromErrno(temporary_.Create(target_, kNewFileMode), target_);
}

int32_t Replacement::OpenOld() {
  old_ = OpenToWrite(target_, isRegular_);
  if (old_ < 0) return ErrorFromErrno(errno, target_);
  if (!isRegular_) {
    fcntl(old_, F_SETFL, fcntl(old_, F_GETFL) & ~O_NONBLOCK);
    return kNoError;
  }
  if (HasOtherNames(old_)) return kNoError;
  if (temporary_.Create(target_, kHiddenMode) != 0) return kNoError;
  if (CopyAttributes(old_, temporary_.descriptor())) {
    close(std::exchange(old_, -1));
  } else {
    temporary_.Discard();
  }
  return kNoError;
}

int32_t Replacement::Append(const void* data, size_t size) {
  const char* bytes = static_cast<const char*>(data);
  if (temporary_.exists()) {
    return ErrorFromErrno(WriteAll(temporary_.descriptor(), bytes, size), target_);
  }
  if (!isRegular_) return ErrorFromErrno(WriteAll(old_, bytes, size), target_);
  bytes_.append(bytes, size);
  return kNoError;
}

int32_t Replacement::Length(int64_t* length) const {
  if (!temporary_.exists() && isRegular_) {
    *length = static_cast<int64_t>(bytes_.size());
    return kNoError;
  }
  struct stat facts {};
  if (fstat(temporary_.exists() ? temporary_.descriptor() : old_, &facts) != 0) {
    return kDeviceIoError;
  }
  *length = facts.st_size;
  return kNoError;
}

int32_t Replacement::Commit() {
  if (temporary_.exists()) return ErrorFromErrno(CommitTemporary(), target_);
  if (isRegular_) return ErrorFromErrno(CommitInPlace(bytes_), target_);
  return ErrorFromErrno(close(std::exchange(old_, -1)) == 0 ? 0 : errno, target_);
}

int Replacement::CommitTemporary() {
  // What is renamed must be on the disk first, or a power cut could leave an empty file.
  if (fsync(temporary_.descriptor()) != 0) return errno;
  const int error = temporary_.MoveTo(target_);
  if (!MayBeWrittenInPlace(error) || !temporary_.exists()) return error;
  old_ = OpenToWrite(target_, true);
  if (old_ < 0) return error;
  std::string bytes;
  const int reading = ReadAll(temporary_.descriptor(), &bytes);
  return reading != 0 ? reading : CommitInPlace(bytes);
}

int Replacement::CommitInPlace(const std::string& bytes) {
  const int error = WriteInPlace(old_, bytes);
  const int closing = close(std::exchange(old_, -1)) == 0 ? 0 : errno;
  return error != 0 ? error : closing;
}

int32_t ReplaceFile(const std::string& hostPath, const std::string& bytes) {
  Replacement replacement;
  int32_t error = replacement.Open(hostPath);
  if (error == kNoError) error = replacement.Append(bytes.data(), bytes.size());
  if (error == kNoError) error = replacement.Commit();
  return error;
}

}  // namespace logchecker
