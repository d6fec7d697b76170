// Directories of the host.
#pragma once

#include <string>

#include "platform/Directories.h"

namespace logchecker {

class PosixDirectories : public Directories {
 public:
  int32_t FirstName(const std::string& path, bool withDirectories, std::string* name) override;
  int32_t MakeDirectory(const std::string& path) override;
  int32_t ChangeDrive(const std::string& path) override;
  int32_t ChangeDirectory(const std::string& path) override;
  int32_t CurrentDirectory(std::string* path) override;
  int32_t RootLength(const std::string& path) override;
  bool FindLookalike(const std::string& path, Lookalike* lookalike) override;
};

}  // namespace logchecker
