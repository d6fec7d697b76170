// Copying, moving and well-known folders on the host.
#pragma once

#include <string>

#include "platform/Shell.h"

namespace logchecker {

class PosixShell : public Shell {
 public:
  int32_t Run(const FileOperation& operation) override;
  int32_t SpecialFolder(int32_t folderNumber, std::string* path) override;
  int32_t ShortPath(const std::string& path, std::string* shortPath) override;
};

}  // namespace logchecker
