// A file beside another that is to take its place.
#pragma once

#include <sys/types.h>

#include <string>

#include "platform/posix/PosixEndings.h"

namespace logchecker {

// Gone again when it has not been moved, also when a signal ends the program. It is locked for as
// long as it is written: one that nobody has locked was left by a program that was killed, and the
// next that writes the same target removes it.
class TemporaryFile {
 public:
  TemporaryFile() = default;
  ~TemporaryFile() { Discard(); }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  // Both return the system's error, 0 for success. `target` is a host path with a root, and `mode`
  // as for a new file. The descriptor reads and writes.
  int Create(const std::string& target, mode_t mode);
  // Renames it over the target and closes it. After an error it is as it was.
  int MoveTo(const std::string& target);

  void Discard();

  bool exists() const { return descriptor_ >= 0; }
  int descriptor() const { return descriptor_; }

 private:
  int descriptor_ = -1;
  std::string path_;
  VanishingFile vanishing_;
};

}  // namespace logchecker
