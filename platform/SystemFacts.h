// What the system and the program's own place in it are.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// The record that the system's version call fills. `dwPlatformId` is 1 or 2 on Windows and 0
// elsewhere, where `description` says in one line what the system is.
struct OSVERSIONINFO {
  uint32_t dwOSVersionInfoSize = 148;
  uint32_t dwMajorVersion = 0;
  uint32_t dwMinorVersion = 0;
  uint32_t dwBuildNumber = 0;
  uint32_t dwPlatformId = 0;
  std::string szCSDVersion;
  std::string description;
};

class SystemFacts {
 public:
  virtual ~SystemFacts() = default;

  // Folder and base name (without extension) of the program's own file, links followed.
  virtual std::string ProgramFolder() = 0;
  virtual std::string ProgramName() = 0;
  // The folder of profile files that are given by a bare name, without a separator at its end.
  virtual std::string WindowsFolder() = 0;
  // Puts another folder in its place; `folder` is as the command line gave it, in the encoding of
  // the system. False when the code page can't hold its absolute name.
  virtual bool SetWindowsFolder(const std::string& folder) = 0;
  virtual OSVERSIONINFO Version() = 0;
};

}  // namespace logchecker
