#include "platform/windows/WindowsFile.h"

#include "platform/ErrorNumbers.h"
#include "platform/windows/WindowsApi.h"
#include "platform/windows/WindowsErrors.h"
#include "platform/windows/WindowsHandleFile.h"
#include "platform/windows/WindowsReplacement.h"

namespace logchecker {

int32_t OpenErrorNumber(const std::string& path) {
  const int32_t error = LastErrorNumber();
  const DWORD attributes = GetFileAttributesA(path.c_str());
  const bool isDirectory =
      attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  return isDirectory ? kPathFileAccess : error;
}

int32_t OpenWindowsFile(HostMode mode, const std::string& path, std::unique_ptr<HostFile>* file) {
  HANDLE handle = INVALID_HANDLE_VALUE;
  switch (mode) {
    case HostMode::kInput:
      handle = OpenShared(path, GENERIC_READ, OPEN_EXISTING);
      break;
    case HostMode::kAppend:
      // Without the right to write elsewhere, each write goes to the end, whoever else appends.
      handle = OpenShared(path, FILE_APPEND_DATA, OPEN_ALWAYS);
      break;
    case HostMode::kReplace:
      return OpenWindowsReplacement(path, file);
    case HostMode::kRandom:
    case HostMode::kRandomExisting:
      handle = OpenShared(path, GENERIC_READ | GENERIC_WRITE,
                          mode == HostMode::kRandom ? OPEN_ALWAYS : OPEN_EXISTING);
      if (handle == INVALID_HANDLE_VALUE && LastErrorNumber() == kPermissionDenied)
        handle = OpenShared(path, GENERIC_READ, OPEN_EXISTING);
      break;
  }
  if (handle == INVALID_HANDLE_VALUE) return OpenErrorNumber(path);
  *file = std::make_unique<WindowsFile>(handle);
  return kNoError;
}

}  // namespace logchecker
