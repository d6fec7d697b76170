#include "platform/posix/PosixFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/ErrorNumbers.h"
#include "platform/posix/LocalTime.h"
#include "platform/posix/PosixErrors.h"
#include "platform/posix/Replacement.h"
#include "platform/posix/StationPath.h"

namespace logchecker {

namespace {

class OpenFile : public HostFile {
 public:
  explicit OpenFile(int descriptor) : descriptor_(descriptor) {}
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile() override {
    if (descriptor_ >= 0) close(descriptor_);
  }

  int32_t ReadAt(int64_t offset, void* data, size_t size, size_t* got) override {
    *got = 0;
    while (*got < size) {
      const ssize_t count = pread(descriptor_, static_cast<char*>(data) + *got, size - *got,
                                  offset + static_cast<int64_t>(*got));
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return kDeviceIoError;
      if (count == 0) break;
      *got += static_cast<size_t>(count);
    }
    return kNoError;
  }

  int32_t WriteAt(int64_t offset, const void* data, size_t size) override {
    const char* next = static_cast<const char*>(data);
    while (size > 0) {
      const ssize_t count = pwrite(descriptor_, next, size, offset);
      if (count < 0 && errno == EINTR) continue;
      // A descriptor that is open for reading alone is refused as a file that may not be written.
      if (count < 0) return errno == EBADF ? kPathFileAccess : ErrorFromErrno(errno, "");
      next += count;
      offset += count;
      size -= static_cast<size_t>(count);
    }
    return kNoError;
  }

  int32_t Append(const void* data, size_t size) override {
    const char* next = static_cast<const char*>(data);
    while (size > 0) {
      const ssize_t count = write(descriptor_, next, size);
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return ErrorFromErrno(errno, "");
      next += count;
      size -= static_cast<size_t>(count);
    }
    return kNoError;
  }

  int32_t Length(int64_t* length) override {
    struct stat facts {};
    if (fstat(descriptor_, &facts) != 0) return kDeviceIoError;
    *length = facts.st_size;
    return kNoError;
  }

  int32_t IsAt(const std::string& path, bool* isThis) override {
    const std::string hostPath = HostPath(path);
    struct stat mine {};
    struct stat there {};
    if (fstat(descriptor_, &mine) != 0) return kDeviceIoError;
    if (stat(hostPath.c_str(), &there) != 0) return ErrorFromErrno(errno, hostPath);
    *isThis = mine.st_dev == there.st_dev && mine.st_ino == there.st_ino;
    return kNoError;
  }

  int32_t Commit() override {
    const int result = close(descriptor_);
    descriptor_ = -1;
    return result == 0 ? kNoError : ErrorFromErrno(errno, "");
  }

 private:
  int descriptor_;
};

class ReplacedFile : public HostFile {
 public:
  int32_t Open(const std::string& hostPath) { return replacement_.Open(hostPath); }

  int32_t ReadAt(int64_t, void*, size_t, size_t*) override { return kBadFileNumber; }
  int32_t WriteAt(int64_t, const void*, size_t) override { return kBadFileNumber; }
  int32_t Append(const void* data, size_t size) override { return replacement_.Append(data, size); }
  int32_t Length(int64_t* length) override { return replacement_.Length(length); }
  int32_t IsAt(const std::string&, bool*) override { return kBadFileNumber; }
  int32_t Commit() override { return replacement_.Commit(); }

 private:
  Replacement replacement_;
};

// A pipe or a device must not hold the program up, so nothing is waited for, and a directory is not
// a file even where it can be opened.
int32_t OpenDescriptor(const std::string& hostPath, int flags, int* descriptor) {
  constexpr mode_t kNewFileMode = 0666;
  *descriptor = open(hostPath.c_str(), flags | O_CLOEXEC | O_NONBLOCK, kNewFileMode);
  if (*descriptor < 0) return ErrorFromErrno(errno, hostPath);
  struct stat facts {};
  if (fstat(*descriptor, &facts) == 0 && !S_ISDIR(facts.st_mode)) return kNoError;
  close(*descriptor);
  return kPathFileAccess;
}

}  // namespace

int32_t PosixFiles::OpenHost(HostMode mode, const std::string& path,
                             std::unique_ptr<HostFile>* file) {
  const std::string hostPath = HostPath(path);
  if (mode == HostMode::kReplace) {
    auto replaced = std::make_unique<ReplacedFile>();
    const int32_t error = replaced->Open(hostPath);
    if (error == kNoError) *file = std::move(replaced);
    return error;
  }
  int descriptor = -1;
  int32_t error = kNoError;
  switch (mode) {
    case HostMode::kAppend:
      error = OpenDescriptor(hostPath, O_WRONLY | O_APPEND | O_CREAT, &descriptor);
      break;
    case HostMode::kRandom:
    case HostMode::kRandomExisting:
      error = OpenDescriptor(hostPath, mode == HostMode::kRandom ? O_RDWR | O_CREAT : O_RDWR,
                             &descriptor);
      if (error != kNoError && OpenDescriptor(hostPath, O_RDONLY, &descriptor) == kNoError) {
        error = kNoError;
      }
      break;
    default:
      error = OpenDescriptor(hostPath, O_RDONLY, &descriptor);
      break;
  }
  if (error == kNoError) *file = std::make_unique<OpenFile>(descriptor);
  return error;
}

int32_t PosixFiles::FileLength(const std::string& path, int64_t* length) {
  const std::string hostPath = HostPath(path);
  struct stat facts {};
  if (stat(hostPath.c_str(), &facts) != 0) return ErrorFromErrno(errno, hostPath);
  if (!S_ISREG(facts.st_mode)) return kFileNotFound;
  *length = facts.st_size;
  return kNoError;
}

int32_t PosixFiles::FileDateTime(const std::string& path, double* dateTime) {
  const std::string hostPath = HostPath(path);
  struct stat facts {};
  if (stat(hostPath.c_str(), &facts) != 0) return ErrorFromErrno(errno, hostPath);
  *dateTime = LocalDateNumber(facts.st_mtim.tv_sec);
  return kNoError;
}

int32_t PosixFiles::ProbeFile(const std::string& path) {
  const std::string hostPath = HostPath(path);
  struct stat facts {};
  if (stat(hostPath.c_str(), &facts) != 0) return ErrorFromErrno(errno, hostPath);
  return S_ISDIR(facts.st_mode) ? kPathFileAccess : kNoError;
}

}  // namespace logchecker
