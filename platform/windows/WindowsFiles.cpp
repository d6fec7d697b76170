#include "platform/windows/WindowsDates.h"
#include "platform/windows/WindowsErrors.h"
#include "platform/windows/WindowsFile.h"
#include "platform/windows/WindowsParts.h"

namespace logchecker {

namespace {

uint64_t Whole(DWORD high, DWORD low) { return (uint64_t{high} << 32U) | low; }

class SystemFiles : public FileTable {
 public:
  int32_t FileLength(const std::string& path, int64_t* length) override {
    WIN32_FILE_ATTRIBUTE_DATA facts;
    if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &facts))
      return LastErrorNumber();
    if ((facts.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return kFileNotFound;
    *length = static_cast<int64_t>(Whole(facts.nFileSizeHigh, facts.nFileSizeLow));
    return kNoError;
  }

  int32_t FileDateTime(const std::string& path, double* dateTime) override {
    WIN32_FILE_ATTRIBUTE_DATA facts;
    SYSTEMTIME universal;
    SYSTEMTIME local;
    if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &facts) ||
        !FileTimeToSystemTime(&facts.ftLastWriteTime, &universal) ||
        !SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local))
      return LastErrorNumber();
    *dateTime = DateNumberOf(local);
    return kNoError;
  }

  // Asked of the open file: what a directory says of it may be old, on a server's share above all.
  FileStamp StampOf(const std::string& path) override {
    FileStamp stamp;
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE handle = CreateFileA(path.c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
      stamp.error = LastErrorNumber();
      return stamp;
    }
    BY_HANDLE_FILE_INFORMATION facts;
    if (GetFileInformationByHandle(handle, &facts)) {
      stamp.isDirectory = (facts.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
      stamp.device = facts.dwVolumeSerialNumber;
      stamp.file = Whole(facts.nFileIndexHigh, facts.nFileIndexLow);
      if (!stamp.isDirectory) {
        stamp.rights = facts.dwFileAttributes;
        stamp.size = static_cast<int64_t>(Whole(facts.nFileSizeHigh, facts.nFileSizeLow));
        stamp.modified = static_cast<int64_t>(
            Whole(facts.ftLastWriteTime.dwHighDateTime, facts.ftLastWriteTime.dwLowDateTime));
        stamp.changed = static_cast<int64_t>(
            Whole(facts.ftCreationTime.dwHighDateTime, facts.ftCreationTime.dwLowDateTime));
      }
    } else {
      stamp.error = LastErrorNumber();
    }
    CloseHandle(handle);
    return stamp;
  }

  int32_t ProbeFile(const std::string& path) override {
    const HANDLE handle = CreateFileA(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return OpenErrorNumber(path);
    CloseHandle(handle);
    return kNoError;
  }

 protected:
  int32_t OpenHost(HostMode mode, const std::string& path,
                   std::unique_ptr<HostFile>* file) override {
    return OpenWindowsFile(mode, path, file);
  }
};

}  // namespace

Files& WindowsFiles() {
  static SystemFiles files;
  return files;
}

}  // namespace logchecker
