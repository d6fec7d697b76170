#include "common/SystemHelpers.h"

#include "common/TextHelpers.h"
#include "platform/Platform.h"

namespace logchecker {

OSVERSIONINFO gOSVersionInfo;

std::string GetShortPath(const std::string& path) {
  std::string shortPath;
  return Os().shell.ShortPath(path, &shortPath) == kNoError ? shortPath : "";
}

int32_t ShellFileOperation(const std::string& from, const std::string& to, const std::string& title,
                           intptr_t ownerWindow, bool move, bool confirm) {
  return Os().shell.Run({from, to, title, ownerWindow, move, confirm});
}

std::string GetSpecialPath(int32_t folderNumber) {
  std::string path;
  if (Os().shell.SpecialFolder(folderNumber, &path) != kNoError) return "";
  return TrimAtNull(path, false);
}

std::string GetProgramFolder() { return Os().system.ProgramFolder(); }

void GetWindowsVersion() { gOSVersionInfo = Os().system.Version(); }

}  // namespace logchecker
