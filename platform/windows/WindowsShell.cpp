#include "platform/windows/WindowsApi.h"
//
#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

#include "platform/windows/WindowsErrors.h"
#include "platform/windows/WindowsParts.h"

namespace logchecker {

namespace {

constexpr DWORD kShortPathSize = 1024;

// The shell reads lists of names, so that each text ends in two NUL characters, the last of them
// being the string's own.
std::string AsList(std::string text) {
  text.push_back('\0');
  return text;
}

class SystemShell : public Shell {
 public:
  int32_t Run(const FileOperation& operation) override {
    const std::string from = AsList(operation.from);
    const std::string to = AsList(operation.to);
    const std::string title = AsList(operation.progressTitle);
    SHFILEOPSTRUCTA call{};
    call.hwnd = reinterpret_cast<HWND>(operation.ownerWindow);
    call.wFunc = operation.move ? FO_MOVE : FO_COPY;
    call.pFrom = from.c_str();
    call.pTo = to.c_str();
    call.fFlags = operation.confirm ? FOF_SIMPLEPROGRESS
                                    : FOF_SIMPLEPROGRESS | FOF_NOCONFIRMATION | FOF_NOCONFIRMMKDIR;
    call.lpszProgressTitle = title.c_str();
    return SHFileOperationA(&call);
  }

  int32_t SpecialFolder(int32_t folderNumber, std::string* path) override {
    path->clear();
    PIDLIST_ABSOLUTE list = nullptr;
    const HRESULT result = SHGetSpecialFolderLocation(nullptr, folderNumber, &list);
    if (FAILED(result)) return result;
    char text[MAX_PATH] = "";
    const BOOL found = SHGetPathFromIDListA(list, text);
    CoTaskMemFree(list);
    // Some of the shell's folders are no folders of the disk.
    if (!found) return kPathNotFound;
    *path = text;
    // A drive's root keeps its separator.
    constexpr size_t kRootLength = 3;
    if (path->size() > kRootLength && path->back() == '\\') path->pop_back();
    return kNoError;
  }

  int32_t ShortPath(const std::string& path, std::string* shortPath) override {
    char text[kShortPathSize];
    const DWORD length = GetShortPathNameA(path.c_str(), text, kShortPathSize - 1);
    if (length == 0) return LastErrorNumber();
    if (length >= kShortPathSize - 1) return kOverflow;
    shortPath->assign(text, length);
    return kNoError;
  }
};

}  // namespace

Shell& WindowsShell() {
  static SystemShell shell;
  return shell;
}

}  // namespace logchecker
