#include "platform/windows/WindowsApi.h"
#include "platform/windows/WindowsParts.h"
#include "platform/windows/WindowsText.h"

namespace logchecker {

namespace {

constexpr UINT kWindowsFolderSize = 145;
constexpr DWORD kModulePathSize = 32768;
constexpr char kSeparators[] = "\\/";

// Without separators at its end, save that of a drive's root.
std::string WithoutEndSeparator(std::string folder) {
  while (folder.size() > 3 && (folder.back() == '\\' || folder.back() == '/')) folder.pop_back();
  return folder;
}

std::string ModulePath() {
  std::string path(kModulePathSize, '\0');
  path.resize(GetModuleFileNameA(nullptr, path.data(), kModulePathSize));
  return path;
}

class Facts : public SystemFacts {
 public:
  std::string ProgramFolder() override {
    const std::string path = ModulePath();
    const size_t separator = path.find_last_of(kSeparators);
    return separator == std::string::npos ? std::string() : path.substr(0, separator);
  }

  std::string ProgramName() override {
    const std::string path = ModulePath();
    const size_t separator = path.find_last_of(kSeparators);
    const std::string name = separator == std::string::npos ? path : path.substr(separator + 1);
    return name.substr(0, name.rfind('.'));
  }

  std::string WindowsFolder() override {
    if (!folder_.empty()) return folder_;
    char text[kWindowsFolderSize];
    const UINT length = GetWindowsDirectoryA(text, kWindowsFolderSize);
    return length < kWindowsFolderSize ? std::string(text, length) : std::string();
  }

  bool SetWindowsFolder(const std::string& folder) override {
    // The runtime leaves a "?" for what the code page can't hold, and no path has one otherwise.
    if (folder.empty() || folder.find('?') != std::string::npos) return false;
    const std::wstring wide = Widen(folder);
    std::wstring full(GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr), L'\0');
    full.resize(
        GetFullPathNameW(wide.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    std::string path;
    if (full.empty() || !Narrow(full, &path)) return false;
    folder_ = WithoutEndSeparator(path);
    return true;
  }

  OSVERSIONINFO Version() override {
    OSVERSIONINFOA record{};
    record.dwOSVersionInfoSize = sizeof record;
    OSVERSIONINFO version;
    static_assert(sizeof record == decltype(version){}.dwOSVersionInfoSize);
    if (!GetVersionExA(&record)) return version;
    version.dwMajorVersion = record.dwMajorVersion;
    version.dwMinorVersion = record.dwMinorVersion;
    version.dwBuildNumber = record.dwBuildNumber;
    version.dwPlatformId = record.dwPlatformId;
    version.szCSDVersion = record.szCSDVersion;
    return version;
  }

  bool HasOwnFolder() const { return !folder_.empty(); }

 private:
  std::string folder_;  // empty while the system's own is in force
};

Facts& TheFacts() {
  static Facts facts;
  return facts;
}

}  // namespace

SystemFacts& WindowsSystemFacts() { return TheFacts(); }

std::string ProfilePath(const std::string& file) {
  const bool bare = file.find_first_of("\\/:") == std::string::npos;
  if (!bare || !TheFacts().HasOwnFolder()) return file;
  return TheFacts().WindowsFolder() + '\\' + file;
}

}  // namespace logchecker
