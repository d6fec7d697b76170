// New content that takes the place of a file's old content whole, or not at all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/posix/TemporaryFile.h"

namespace logchecker {

// Writes beside the target and renames over it on Commit. Links are followed. Owner, group, mode,
// access list and extended attributes of the old file are kept, and so are its other names: where a
// new file can't have them, or can't be made, the old one is given the new content in its place on
// Commit. A target that is no regular file (a device, a pipe) is written as the bytes come.
class Replacement {
 public:
  Replacement() = default;
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  // Without a Commit the target stays as it was.
  ~Replacement();

  // Each returns an error number. `hostPath` is the target.
  int32_t Open(const std::string& hostPath);
  int32_t Append(const void* data, size_t size);
  int32_t Commit();
  // How many bytes there are so far.
  int32_t Length(int64_t* length) const;

 private:
  int32_t OpenOld();
  int CommitTemporary();
  int CommitInPlace(const std::string& bytes);

  std::string target_;
  TemporaryFile temporary_;
  int old_ = -1;  // the target itself, where it is written in place
  bool isRegular_ = true;
  std::string bytes_;  // for a regular file that is written in place
};

// The whole of `bytes` as the new content of `hostPath`.
int32_t ReplaceFile(const std::string& hostPath, const std::string& bytes);

}  // namespace logchecker
