// The host system and the program's place in it.
#pragma once

#include <string>

#include "platform/SystemFacts.h"

namespace logchecker {

class PosixSystemFacts : public SystemFacts {
 public:
  std::string ProgramFolder() override;
  std::string ProgramName() override;
  std::string WindowsFolder() override;
  bool SetWindowsFolder(const std::string& folder) override;
  OSVERSIONINFO Version() override;
};

}  // namespace logchecker
