#include "platform/windows/WindowsHandleFile.h"

#include "platform/ErrorNumbers.h"
#include "platform/windows/WindowsErrors.h"
#include "platform/windows/WindowsFile.h"

namespace logchecker {

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kLargestTransfer = 1 << 20;

DWORD TransferSize(size_t left) {
  return left < kLargestTransfer ? static_cast<DWORD>(left) : kLargestTransfer;
}

OVERLAPPED At(int64_t offset) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(offset & 0xFFFFFFFF);
  place.OffsetHigh = static_cast<DWORD>(offset >> 32);
  return place;
}

}  // namespace

HANDLE OpenShared(const std::string& path, DWORD access, DWORD disposition) {
  return CreateFileA(path.c_str(), access, kShareAll, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                     nullptr);
}

int32_t WindowsFile::ReadAt(int64_t offset, void* data, size_t size, size_t* got) {
  size_t ignored = 0;
  size_t& done = got == nullptr ? ignored : *got;
  done = 0;
  while (done < size) {
    OVERLAPPED place = At(offset + static_cast<int64_t>(done));
    DWORD count = 0;
    if (!ReadFile(handle_, static_cast<char*>(data) + done, TransferSize(size - done), &count,
                  &place)) {
      const DWORD code = GetLastError();
      return code == ERROR_HANDLE_EOF || code == ERROR_BROKEN_PIPE ? kNoError : LastErrorNumber();
    }
    if (count == 0) return kNoError;
    done += count;
  }
  return kNoError;
}

int32_t WindowsFile::WriteAt(int64_t offset, const void* data, size_t size) {
  for (size_t done = 0; done < size;) {
    OVERLAPPED place = At(offset + static_cast<int64_t>(done));
    const int32_t error = Put(static_cast<const char*>(data), size, &place, &done);
    // The file was opened for reading alone.
    if (error != kNoError && GetLastError() == ERROR_ACCESS_DENIED) return kPathFileAccess;
    if (error != kNoError) return error;
  }
  return kNoError;
}

int32_t WindowsFile::Append(const void* data, size_t size) {
  for (size_t done = 0; done < size;) {
    const int32_t error = Put(static_cast<const char*>(data), size, nullptr, &done);
    if (error != kNoError) return error;
  }
  return kNoError;
}

int32_t WindowsFile::Length(int64_t* length) {
  LARGE_INTEGER size;
  if (!GetFileSizeEx(handle_, &size)) return LastErrorNumber();
  *length = size.QuadPart;
  return kNoError;
}

int32_t WindowsFile::IsAt(const std::string& path, bool* isThis) {
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

int32_t WindowsFile::Commit() { return CloseNow() ? kNoError : LastErrorNumber(); }

bool WindowsFile::CloseNow() {
  if (handle_ == INVALID_HANDLE_VALUE) return true;
  return CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != 0;
}

int32_t WindowsFile::Put(const char* data, size_t size, OVERLAPPED* place, size_t* done) {
  DWORD count = 0;
  if (!WriteFile(handle_, data + *done, TransferSize(size - *done), &count, place))
    return LastErrorNumber();
  if (count == 0) return kDiskFull;
  *done += count;
  return kNoError;
}

}  // namespace logchecker
