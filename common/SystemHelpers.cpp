#include "common/SystemHelpers.h"

#include "common/TextHelpers.h"
#include "common/UserInterface.h"
#include "platform/Platform.h"

namespace logchecker {

OSVERSIONINFO gOSVersionInfo;

std::string GetShortPath(const std::string& path) {
  std::string shortPath;
  return Os().shell.ShortPath(path, &shortPath) == kNoError ? shortPath : "";
}

int32_t ShellFileOperation(const std::string& from, const std::string& to, const std::string& title,
                           intptr_t ownerWindow, bool move, bool confirm) {
  FileOperation operation;
  operation.from = from;
  operation.to = to;
  operation.progressTitle = title;
  operation.ownerWindow = ownerWindow;
  operation.move = move;
  operation.confirm = confirm;
  operation.progress = [&](int64_t done, int64_t total) {
    Ui().ShowFileProgress(title, done, total);
  };
  operation.mayReplace = [](const std::string& file) {
    return Ui().Show({file + "\nalready exists. Replace it?", MessageIcon::kQuestion,
                      MessageButtons::kYesNoCancel, kProgramTitle}) == MessageAnswer::kYes;
  };
  const int32_t result = Os().shell.Run(operation);
  // A copy that failed on its way is over too.
  Ui().ShowFileProgress(title, 0, 0);
  return result;
}

std::string GetSpecialPath(int32_t folderNumber) {
  std::string path;
  if (Os().shell.SpecialFolder(folderNumber, &path) != kNoError) return "";
  return TrimAtNull(path, false);
}

std::string GetProgramFolder() { return Os().system.ProgramFolder(); }

void GetWindowsVersion() { gOSVersionInfo = Os().system.Version(); }

}  // namespace logchecker
