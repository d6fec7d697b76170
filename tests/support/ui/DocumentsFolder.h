// The user's documents folder is another one for a while.
#pragma once

#include <memory>

#include "tests/support/TempFolder.h"

namespace logchecker {

class DocumentsFolder {
 public:
  explicit DocumentsFolder(const TempFolder& folder);
  ~DocumentsFolder();
  DocumentsFolder(const DocumentsFolder&) = delete;
  DocumentsFolder& operator=(const DocumentsFolder&) = delete;

 private:
  struct Before;
  std::unique_ptr<Before> before_;
};

}  // namespace logchecker
