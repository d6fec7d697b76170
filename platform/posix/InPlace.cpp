#include "platform/posix/InPlace.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string_view>

#include "platform/posix/PosixEndings.h"

namespace logchecker {

namespace {

int WriteAt(int file, std::string_view bytes, off_t place) {
  while (!bytes.empty()) {
    const ssize_t count = pwrite(file, bytes.data(), bytes.size(), place);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return count < 0 ? errno : ENOSPC;
    bytes.remove_prefix(static_cast<size_t>(count));
    place += count;
  }
  return 0;
}

int ReadUpTo(int file, size_t most, std::string* bytes) {
  constexpr size_t kPart = size_t{64} * 1024;
  bytes->clear();
  while (bytes->size() < most) {
    const size_t had = bytes->size();
    bytes->resize(had + std::min(kPart, most - had));
    const ssize_t count =
        pread(file, bytes->data() + had, bytes->size() - had, static_cast<off_t>(had));
    bytes->resize(had + static_cast<size_t>(std::max<ssize_t>(count, 0)));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    if (count == 0) break;
  }
  return 0;
}

int FlushedOr(int file, int error) {
  if (error != 0) return error;
  return fsync(file) == 0 ? 0 : errno;
}

int CutTo(int file, off_t length) { return ftruncate(file, length) == 0 ? 0 : errno; }

}  // namespace

int WriteInPlace(int descriptor, const std::string& bytes) {
  struct stat facts {};
  if (fstat(descriptor, &facts) != 0) return errno;
  const auto oldSize = static_cast<size_t>(facts.st_size);
  const size_t shared = std::min(oldSize, bytes.size());
  const std::string_view content = bytes;
  std::string old;
  const bool known = ReadUpTo(descriptor, shared, &old) == 0;
  const UninterruptedWrite whole;
  // What is new behind the old end comes first: it alone needs room.
  if (bytes.size() > oldSize) {
    const int error =
        FlushedOr(descriptor, WriteAt(descriptor, content.substr(oldSize), facts.st_size));
    if (error != 0) {
      CutTo(descriptor, facts.st_size);
      return error;
    }
  }
  int error = FlushedOr(descriptor, WriteAt(descriptor, content.substr(0, shared), 0));
  if (error == 0 && bytes.size() < oldSize) {
    error = FlushedOr(descriptor, CutTo(descriptor, static_cast<off_t>(bytes.size())));
  }
  if (error != 0 && known) {
    WriteAt(descriptor, old, 0);
    CutTo(descriptor, facts.st_size);
  }
  return error;
}

int ReadAll(int descriptor, std::string* bytes) {
  return ReadUpTo(descriptor, std::string::npos, bytes);
}

}  // namespace logchecker
