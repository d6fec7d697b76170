#include "platform/windows/WindowsFile.h"

#include <utility>

#include "platform/ErrorNumbers.h"
#include "platform/windows/WindowsApi.h"
#include "platform/windows/WindowsErrors.h"

namespace logchecker {

namespace {

// Other programs may read, write, rename and delete what is open here.
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kLargestTransfer = 1 << 20;

HANDLE Open(const std::string& path, DWORD access, DWORD disposition) {
  return CreateFileA(path.c_str(), access, kShareAll, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                     nullptr);
}

DWORD TransferSize(size_t left) {
  return left < kLargestTransfer ? static_cast<DWORD>(left) : kLargestTransfer;
}

OVERLAPPED At(int64_t offset) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(offset & 0xFFFFFFFF);
  place.OffsetHigh = static_cast<DWORD>(offset >> 32);
  return place;
}

class WindowsFile : public HostFile {
 public:
  explicit WindowsFile(HANDLE handle) : handle_(handle) {}
  ~WindowsFile() override { CloseNow(); }
  WindowsFile(const WindowsFile&) = delete;
  WindowsFile& operator=(const WindowsFile&) = delete;

  int32_t ReadAt(int64_t offset, void* data, size_t size, size_t* got) override {
    *got = 0;
    while (*got < size) {
      OVERLAPPED place = At(offset + static_cast<int64_t>(*got));
      DWORD count = 0;
      if (!ReadFile(handle_, static_cast<char*>(data) + *got, TransferSize(size - *got), &count,
                    &place)) {
        const DWORD code = GetLastError();
        return code == ERROR_HANDLE_EOF || code == ERROR_BROKEN_PIPE ? kNoError : LastErrorNumber();
      }
      if (count == 0) return kNoError;
      *got += count;
    }
    return kNoError;
  }

  int32_t WriteAt(int64_t offset, const void* data, size_t size) override {
    for (size_t done = 0; done < size;) {
      OVERLAPPED place = At(offset + static_cast<int64_t>(done));
      const int32_t error = Put(static_cast<const char*>(data), size, &place, &done);
      // The file was opened for reading alone.
      if (error != kNoError && GetLastError() == ERROR_ACCESS_DENIED) return kPathFileAccess;
      if (error != kNoError) return error;
    }
    return kNoError;
  }

  int32_t Append(const void* data, size_t size) override {
    for (size_t done = 0; done < size;) {
      const int32_t error = Put(static_cast<const char*>(data), size, nullptr, &done);
      if (error != kNoError) return error;
    }
    return kNoError;
  }

  int32_t Length(int64_t* length) override {
    LARGE_INTEGER size;
    if (!GetFileSizeEx(handle_, &size)) return LastErrorNumber();
    *length = size.QuadPart;
    return kNoError;
  }

  int32_t IsAt(const std::string& path, bool* isThis) override {
    // With no rights asked, so that a file that others hold answers too, and a directory.
    const HANDLE other = CreateFileA(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                                     FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (other == INVALID_HANDLE_VALUE) return OpenErrorNumber(path);
    BY_HANDLE_FILE_INFORMATION mine;
    BY_HANDLE_FILE_INFORMATION there;
    const bool known =
        GetFileInformationByHandle(handle_, &mine) && GetFileInformationByHandle(other, &there);
    const int32_t error = known ? kNoError : LastErrorNumber();
    CloseHandle(other);
    if (!known) return error;
    *isThis = mine.dwVolumeSerialNumber == there.dwVolumeSerialNumber &&
              mine.nFileIndexHigh == there.nFileIndexHigh &&
              mine.nFileIndexLow == there.nFileIndexLow;
    return kNoError;
  }

  int32_t Commit() override { return CloseNow() ? kNoError : LastErrorNumber(); }

 protected:
  HANDLE handle() const { return handle_; }

  bool CloseNow() {
    if (handle_ == INVALID_HANDLE_VALUE) return true;
    return CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != 0;
  }

 private:
  // Writes what follows `*done`, or the first part of it, and adds its size to `*done`.
  int32_t Put(const char* data, size_t size, OVERLAPPED* place, size_t* done) {
    DWORD count = 0;
    if (!WriteFile(handle_, data + *done, TransferSize(size - *done), &count, place))
      return LastErrorNumber();
    if (count == 0) return kDiskFull;
    *done += count;
    return kNoError;
  }

  HANDLE handle_;
};

// A new file beside the old one, which takes its place on Commit.
class Replacement : public WindowsFile {
 public:
  Replacement(HANDLE handle, std::string temporary, std::string target)
      : WindowsFile(handle), temporary_(std::move(temporary)), target_(std::move(target)) {}

  ~Replacement() override {
    CloseNow();
    if (!temporary_.empty()) DeleteFileA(temporary_.c_str());
  }

  int32_t Commit() override {
    // Written to the disk before the name changes hands, so that a power cut leaves one file or the
    // other, whole.
    if (!FlushFileBuffers(handle())) return LastErrorNumber();
    if (!CloseNow()) return LastErrorNumber();
    if (!MoveFileExA(temporary_.c_str(), target_.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
      return LastErrorNumber();
    temporary_.clear();
    return kNoError;
  }

 private:
  std::string temporary_;
  std::string target_;
};

// The current directory may have changed by the time the file is committed.
std::string FullPath(const std::string& path) {
  std::string full(GetFullPathNameA(path.c_str(), 0, nullptr, nullptr), '\0');
  full.resize(
      GetFullPathNameA(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full;
}

int32_t OpenReplacement(const std::string& path, std::unique_ptr<HostFile>* file) {
  const HANDLE old = Open(path, GENERIC_WRITE, OPEN_EXISTING);
  if (old == INVALID_HANDLE_VALUE) {
    if (GetLastError() != ERROR_FILE_NOT_FOUND) return OpenErrorNumber(path);
  } else if (GetFileType(old) != FILE_TYPE_DISK) {
    *file = std::make_unique<WindowsFile>(old);
    return kNoError;
  } else {
    CloseHandle(old);
  }
  const std::string target = FullPath(path);
  const std::string folder = target.substr(0, target.find_last_of('\\') + 1);
  char temporary[MAX_PATH];
  if (GetTempFileNameA(folder.c_str(), "log", 0, temporary) == 0) return LastErrorNumber();
  const HANDLE handle = Open(temporary, GENERIC_WRITE, OPEN_EXISTING);
  if (handle == INVALID_HANDLE_VALUE) {
    const int32_t error = LastErrorNumber();
    DeleteFileA(temporary);
    return error;
  }
  *file = std::make_unique<Replacement>(handle, temporary, target);
  return kNoError;
}

}  // namespace

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
      handle = Open(path, GENERIC_READ, OPEN_EXISTING);
      break;
    case HostMode::kAppend:
      // Without the right to write elsewhere, each write goes to the end, whoever else appends.
      handle = Open(path, FILE_APPEND_DATA, OPEN_ALWAYS);
      break;
    case HostMode::kReplace:
      return OpenReplacement(path, file);
    case HostMode::kRandom:
    case HostMode::kRandomExisting:
      handle = Open(path, GENERIC_READ | GENERIC_WRITE,
                    mode == HostMode::kRandom ? OPEN_ALWAYS : OPEN_EXISTING);
      if (handle == INVALID_HANDLE_VALUE && LastErrorNumber() == kPermissionDenied)
        handle = Open(path, GENERIC_READ, OPEN_EXISTING);
      break;
  }
  if (handle == INVALID_HANDLE_VALUE) return OpenErrorNumber(path);
  *file = std::make_unique<WindowsFile>(handle);
  return kNoError;
}

}  // namespace logchecker
