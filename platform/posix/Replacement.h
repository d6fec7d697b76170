// A file that takes the place of another whole, or not at all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace logchecker {

// Writes beside the target and renames over it on Commit. Links are followed and the mode of the
// old file is kept. A target that is no regular file (a device, a pipe) is written in place.
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

  int descriptor() const { return descriptor_; }

 private:
  int descriptor_ = -1;
  std::string target_;
  std::string temporary_;  // empty when written in place
};

// The whole of `bytes` as the new content of `hostPath`.
int32_t ReplaceFile(const std::string& hostPath, const std::string& bytes);

}  // namespace logchecker
