#include "platform/windows/WindowsReplacement.h"

#include <random>
#include <utility>
#include <vector>

#include "platform/ErrorNumbers.h"
#include "platform/windows/WindowsEndings.h"
#include "platform/windows/WindowsErrors.h"
#include "platform/windows/WindowsFile.h"
#include "platform/windows/WindowsHandleFile.h"

namespace logchecker {

namespace {

constexpr char kBeginning[] = "~logchecker-";
constexpr char kEnd[] = ".new";

// A new file beside the old one, which takes its place on Commit. The second handle marks it as
// being written until it has its name: what can be opened without sharing was left by a program
// that was killed.
class Replacement : public WindowsFile {
 public:
  Replacement(HANDLE handle, HANDLE mark, std::string temporary, std::string target)
      : WindowsFile(handle),
        mark_(mark),
        temporary_(std::move(temporary)),
        target_(std::move(target)) {}

  ~Replacement() override {
    CloseNow();
    if (!temporary_.empty()) DeleteFileA(temporary_.c_str());
    CloseHandle(mark_);
    ReleaseVanishingFile(temporary_);
  }

  int32_t Commit() override {
    // Written to the disk before the name changes hands, so that a power cut leaves one file or the
    // other, whole.
    if (!FlushFileBuffers(handle())) return LastErrorNumber();
    if (!CloseNow()) return LastErrorNumber();
    if (!MoveFileExA(temporary_.c_str(), target_.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
      return LastErrorNumber();
    ReleaseVanishingFile(temporary_);
    temporary_.clear();
    return kNoError;
  }

 private:
  HANDLE mark_;
  std::string temporary_;
  std::string target_;
};

// The old file itself, which gets its new content on Commit.
class InPlaceFile : public WindowsFile {
 public:
  using WindowsFile::WindowsFile;

  int32_t Append(const void* data, size_t size) override {
    bytes_.append(static_cast<const char*>(data), size);
    return kNoError;
  }

  int32_t Length(int64_t* length) override {
    *length = static_cast<int64_t>(bytes_.size());
    return kNoError;
  }

  int32_t Commit() override {
    int64_t before = 0;
    int32_t error = WindowsFile::Length(&before);
    const auto size = static_cast<int64_t>(bytes_.size());
    // The room is taken before the first old byte goes.
    if (error == kNoError && size > before) error = SetLength(size);
    if (error == kNoError) error = WriteAt(0, bytes_.data(), bytes_.size());
    if (error == kNoError && size < before) error = SetLength(size);
    if (error == kNoError && !FlushFileBuffers(handle())) error = LastErrorNumber();
    if (!CloseNow() && error == kNoError) error = LastErrorNumber();
    return error;
  }

 private:
  int32_t SetLength(int64_t length) {
    LARGE_INTEGER place;
    place.QuadPart = length;
    const bool set =
        SetFilePointerEx(handle(), place, nullptr, FILE_BEGIN) && SetEndOfFile(handle());
    return set ? kNoError : LastErrorNumber();
  }

  std::string bytes_;
};

// The current directory may have changed by the time the file is committed.
std::string FullPath(const std::string& path) {
  std::string full(GetFullPathNameA(path.c_str(), 0, nullptr, nullptr), '\0');
  full.resize(
      GetFullPathNameA(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full;
}

void RemoveWhatWasLeft(const std::string& folder) {
  WIN32_FIND_DATAA found;
  const HANDLE names = FindFirstFileA((folder + kBeginning + "*" + kEnd).c_str(), &found);
  if (names == INVALID_HANDLE_VALUE) return;
  do {
    const HANDLE left =
        CreateFileA((folder + found.cFileName).c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                    FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (left != INVALID_HANDLE_VALUE) CloseHandle(left);
  } while (FindNextFileA(names, &found));
  FindClose(names);
}

std::string NewName(const std::string& folder) {
  constexpr char kDigits[] = "0123456789abcdef";
  constexpr int kMarkLength = 8;
  std::random_device random;
  std::string name = folder + kBeginning;
  for (int i = 0; i < kMarkLength; ++i) name += kDigits[random() % 16U];
  return name + kEnd;
}

// Gives the new file the access list and the marks of the old one.
bool CopyAttributes(const std::string& from, const std::string& to) {
  constexpr DWORD kMarks = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
  const DWORD marks = GetFileAttributesA(from.c_str());
  if (marks == INVALID_FILE_ATTRIBUTES) return false;
  DWORD size = 0;
  GetFileSecurityA(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<char> list(size);
  // A file system without access lists has none to lose.
  if (size != 0) {
    if (!GetFileSecurityA(from.c_str(), DACL_SECURITY_INFORMATION, list.data(), size, &size))
      return false;
    if (!SetFileSecurityA(to.c_str(), DACL_SECURITY_INFORMATION, list.data())) return false;
  }
  return (marks & kMarks) == 0 || SetFileAttributesA(to.c_str(), marks & kMarks) != 0;
}

bool MustStayTheSame(HANDLE old, const std::string& path) {
  BY_HANDLE_FILE_INFORMATION facts;
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return !GetFileInformationByHandle(old, &facts) || facts.nNumberOfLinks > 1 ||
         attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

// `old` is the path of the file that is there, or empty.
int32_t OpenBeside(const std::string& path, const std::string& old,
                   std::unique_ptr<HostFile>* file) {
  const std::string target = FullPath(path);
  const std::string folder = target.substr(0, target.find_last_of('\\') + 1);
  RemoveWhatWasLeft(folder);
  const std::string temporary = NewName(folder);
  HoldVanishingFile(temporary);
  const HANDLE handle = OpenShared(temporary, GENERIC_WRITE, CREATE_NEW);
  if (handle == INVALID_HANDLE_VALUE) {
    const int32_t error = LastErrorNumber();
    ReleaseVanishingFile(temporary);
    return error;
  }
  const HANDLE mark = OpenShared(temporary, DELETE, OPEN_EXISTING);
  auto replacement = std::make_unique<Replacement>(handle, mark, temporary, target);
  if (mark == INVALID_HANDLE_VALUE) return LastErrorNumber();
  if (!old.empty() && !CopyAttributes(old, temporary)) return kPermissionDenied;
  *file = std::move(replacement);
  return kNoError;
}

}  // namespace

int32_t OpenWindowsReplacement(const std::string& path, std::unique_ptr<HostFile>* file) {
  const HANDLE old = OpenShared(path, GENERIC_WRITE, OPEN_EXISTING);
  if (old == INVALID_HANDLE_VALUE) {
    if (GetLastError() != ERROR_FILE_NOT_FOUND) return OpenErrorNumber(path);
    return OpenBeside(path, "", file);
  }
  if (GetFileType(old) != FILE_TYPE_DISK) {
    *file = std::make_unique<WindowsFile>(old);
    return kNoError;
  }
  auto inPlace = std::make_unique<InPlaceFile>(old);
  if (MustStayTheSame(old, path) || OpenBeside(path, path, file) != kNoError)
    *file = std::move(inPlace);
  return kNoError;
}

}  // namespace logchecker
