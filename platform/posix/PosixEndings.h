// What a signal that ends the program must not leave behind.
#pragma once

#include <sys/types.h>

#include <string>

namespace logchecker {

// A file that goes with the process while it is held.
class VanishingFile {
 public:
  VanishingFile() = default;
  ~VanishingFile() { Release(); }
  VanishingFile(const VanishingFile&) = delete;
  VanishingFile& operator=(const VanishingFile&) = delete;

  // `path` has a root. Of very many at a time the last are not held.
  void Hold(const std::string& path);
  void Release();

 private:
  static constexpr int kNone = -1;

  int slot_ = kNone;
};

// A group of processes that is ended with the process while it is held.
class VanishingGroup {
 public:
  VanishingGroup() = default;
  ~VanishingGroup() { Release(); }
  VanishingGroup(const VanishingGroup&) = delete;
  VanishingGroup& operator=(const VanishingGroup&) = delete;

  // `leader` is a child that leads it. Of very many at a time the last are not held.
  void Hold(pid_t leader);
  void Release();

 private:
  static constexpr int kNone = -1;

  int slot_ = kNone;
};

// A signal that would end the program waits for as long as this lives.
class UninterruptedWrite {
 public:
  UninterruptedWrite();
  ~UninterruptedWrite();
  UninterruptedWrite(const UninterruptedWrite&) = delete;
  UninterruptedWrite& operator=(const UninterruptedWrite&) = delete;
};

}  // namespace logchecker
