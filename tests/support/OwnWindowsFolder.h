// An empty Windows folder for the length of a test, so that no test reads or writes the user's own.
#pragma once

#include <string>

#include "tests/support/TempFolder.h"

namespace logchecker {

class OwnWindowsFolder {
 public:
  OwnWindowsFolder();
  ~OwnWindowsFolder();
  OwnWindowsFolder(const OwnWindowsFolder&) = delete;
  OwnWindowsFolder& operator=(const OwnWindowsFolder&) = delete;

  const TempFolder& folder() const { return folder_; }

 private:
  TempFolder folder_;
  std::string before_;
};

}  // namespace logchecker
