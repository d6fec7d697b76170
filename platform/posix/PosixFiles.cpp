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
    size_t done = 0;
    while (done < size) {
      const ssize_t count = pread(descriptor_, static_cast<char*>(data) + done, size - done,
                                  offset + static_cast<int64_t>(done));
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) return kDeviceIoError;
      if (count == 0) break;
      done += static_cast<size_t>(count);
    }
    if (got != nullptr) *got = done;
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

// A pipe or a device must not hold the program up, so nothing is waited for.
int OpenWithoutWaiting(const std::string& hostPath, int flags) {
  constexpr mode_t kNewFileMode = 0666;
  return open(hostPath.c_str(), flags | O_CLOEXEC | O_NONBLOCK, kNewFileMode);
}

// A directory is not a file even where it can be opened, which is for reading alone.
int32_t OpenDescriptor(const std::string& hostPath, int flags, int* descriptor) {
  *descriptor = OpenWithoutWaiting(hostPath, flags);
  if (*descriptor < 0) return ErrorFromErrno(errno, hostPath);
  if ((flags & O_ACCMODE) != O_RDONLY) return kNoError;
  struct stat facts {};
  if (fstat(*descriptor, &facts) == 0 && !S_ISDIR(facts.st_mode)) return kNoError;
  close(*descriptor);
  return kPathFileAccess;
}

int64_t Nanoseconds(const timespec& time) {
  constexpr int64_t kNanosecondsASecond = 1000000000;
  return int64_t{time.tv_sec} * kNanosecondsASecond + time.tv_nsec;
}

// For reading and writing, or for reading alone.
int32_t OpenForRecords(const std::string& hostPath, int flags, int* descriptor) {
  const int32_t error = OpenDescriptor(hostPath, O_RDWR | flags, descriptor);
  if (error == kNoError || OpenDescriptor(hostPath, O_RDONLY, descriptor) == kNoError) {
    return kNoError;
  }
  return error;
}

// What the system says of the file or directory that a path leads to.
int32_t FactsOf(const std::string& path, struct stat* facts) {
  const HostEntry entry = FindEntry(path);
  if (entry.isMissing) return kFileNotFound;
  *facts = entry.facts;
  if (S_ISREG(facts->st_mode)) return kNoError;
  return stat(entry.path.c_str(), facts) == 0 ? kNoError : ErrorFromErrno(errno, entry.path);
}

}  // namespace

int32_t PosixFiles::OpenHost(HostMode mode, const std::string& path,
                             std::unique_ptr<HostFile>* file) {
  if (mode == HostMode::kRandom) {
    // One that is there as it is written need not be looked for first.
    const std::string written = HostSpelling(path);
    int descriptor = OpenWithoutWaiting(written, O_RDWR);
    const bool isThere = descriptor >= 0 || errno != ENOENT;
    if (descriptor >= 0 ||
        (isThere && OpenDescriptor(written, O_RDONLY, &descriptor) == kNoError)) {
      *file = std::make_unique<OpenFile>(descriptor);
      return kNoError;
    }
  }
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
      error = OpenForRecords(hostPath, O_CREAT, &descriptor);
      break;
    case HostMode::kRandomExisting:
      error = OpenForRecords(hostPath, 0, &descriptor);
      break;
    default:
      error = OpenDescriptor(hostPath, O_RDONLY, &descriptor);
      break;
  }
  if (error == kNoError) *file = std::make_unique<OpenFile>(descriptor);
  return error;
}

int32_t PosixFiles::FileLength(const std::string& path, int64_t* length) {
  struct stat facts {};
  const int32_t error = FactsOf(path, &facts);
  if (error != kNoError) return error;
  if (!S_ISREG(facts.st_mode)) return kFileNotFound;
  *length = facts.st_size;
  return kNoError;
}

int32_t PosixFiles::FileDateTime(const std::string& path, double* dateTime) {
  struct stat facts {};
  const int32_t error = FactsOf(path, &facts);
  if (error == kNoError) *dateTime = LocalDateNumber(facts.st_mtim.tv_sec);
  return error;
}

FileStamp PosixFiles::StampOf(const std::string& path) {
  const std::string hostPath = HostPath(path);
  struct stat facts {};
  FileStamp stamp;
  if (stat(hostPath.c_str(), &facts) != 0) {
    stamp.error = ErrorFromErrno(errno, hostPath);
    return stamp;
  }
  stamp.isDirectory = S_ISDIR(facts.st_mode);
  stamp.device = facts.st_dev;
  stamp.file = facts.st_ino;
  stamp.rights = uint64_t{facts.st_uid} << 32U | facts.st_mode;
  if (stamp.isDirectory) return stamp;
  stamp.size = facts.st_size;
  stamp.modified = Nanoseconds(facts.st_mtim);
  stamp.changed = Nanoseconds(facts.st_ctim);
  return stamp;
}

int32_t PosixFiles::ProbeFile(const std::string& path) {
  struct stat facts {};
  const int32_t error = FactsOf(path, &facts);
  return error == kNoError && S_ISDIR(facts.st_mode) ? kPathFileAccess : error;
}

}  // namespace logchecker
