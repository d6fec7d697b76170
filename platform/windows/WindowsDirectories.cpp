#include "platform/windows/WindowsApi.h"
#include "platform/windows/WindowsErrors.h"
#include "platform/windows/WindowsParts.h"

namespace logchecker {

namespace {

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

bool HasDrive(const std::string& path) {
  if (path.size() < 2 || path[1] != ':') return false;
  return (path[0] >= 'A' && path[0] <= 'Z') || (path[0] >= 'a' && path[0] <= 'z');
}

// Whether the last part of a path is empty or ".", so that the path can only mean a directory.
bool EndsAsDirectory(const std::string& path) {
  if (path.empty()) return false;
  if (IsSeparator(path.back())) return true;
  return path.back() == '.' && (path.size() == 1 || IsSeparator(path[path.size() - 2]));
}

// The number of the call that has just failed, where what is missing is no error. What is looked
// for in a file instead of a folder counts as a bad name.
int32_t UnlessMissing() {
  if (GetLastError() == ERROR_INVALID_NAME) return kNoError;
  const int32_t error = LastErrorNumber();
  return error == kFileNotFound || error == kPathNotFound ? kNoError : error;
}

class SystemDirectories : public Directories {
 public:
  int32_t FirstName(const std::string& path, bool withDirectories, std::string* name) override {
    name->clear();
    if (path.empty()) return kNoError;
    if (EndsAsDirectory(path)) {
      const DWORD attributes = GetFileAttributesA(path.c_str());
      if (attributes == INVALID_FILE_ATTRIBUTES) return UnlessMissing();
      if (withDirectories && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) name->assign(1, '.');
      return kNoError;
    }
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA(path.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return UnlessMissing();
    do {
      const bool isDirectory = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
      if (withDirectories || !isDirectory) *name = found.cFileName;
    } while (name->empty() && FindNextFileA(search, &found));
    FindClose(search);
    return kNoError;
  }

  int32_t MakeDirectory(const std::string& path) override {
    if (CreateDirectoryA(path.c_str(), nullptr)) return kNoError;
    const int32_t error = LastErrorNumber();
    // A drive's root is refused, not reported as taken.
    if (error == kPermissionDenied && GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES)
      return kPathFileAccess;
    return error == kFileNotFound ? kPathNotFound : error;
  }

  int32_t ChangeDrive(const std::string& path) override {
    if (!HasDrive(path)) return kInvalidCall;
    const std::string root = path.substr(0, 2) + '\\';
    return GetFileAttributesA(root.c_str()) == INVALID_FILE_ATTRIBUTES ? LastErrorNumber()
                                                                       : kNoError;
  }

  int32_t ChangeDirectory(const std::string& path) override {
    if (SetCurrentDirectoryA(path.c_str())) return kNoError;
    const int32_t error = LastErrorNumber();
    return error == kFileNotFound ? kPathNotFound : error;
  }

  int32_t CurrentDirectory(std::string* path) override {
    path->resize(GetCurrentDirectoryA(0, nullptr));
    path->resize(GetCurrentDirectoryA(static_cast<DWORD>(path->size()), path->data()));
    return path->empty() ? LastErrorNumber() : kNoError;
  }

  int32_t RootLength(const std::string& path) override {
    if (HasDrive(path)) return path.size() > 2 && IsSeparator(path[2]) ? 3 : 2;
    if (path.empty() || !IsSeparator(path[0])) return 0;
    if (path.size() < 2 || !IsSeparator(path[1])) return 1;
    // The root of a server is its share.
    size_t end = path.find_first_of("\\/", 2);
    if (end != std::string::npos) end = path.find_first_of("\\/", end + 1);
    return static_cast<int32_t>(end == std::string::npos ? path.size() : end + 1);
  }

  bool FindLookalike(const std::string&, Lookalike*) override { return false; }
};

}  // namespace

Directories& WindowsDirectories() {
  static SystemDirectories directories;
  return directories;
}

}  // namespace logchecker
