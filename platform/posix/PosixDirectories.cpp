#include "platform/posix/PosixDirectories.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <climits>

#include "platform/ErrorNumbers.h"
#include "platform/HostPaths.h"
#include "platform/StationText.h"
#include "platform/posix/PosixErrors.h"
#include "platform/posix/StationPath.h"

namespace logchecker {

namespace {

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

bool HasDrive(const std::string& path) {
  return path.size() >= 2 && path[1] == ':' &&
         std::isalpha(static_cast<unsigned char>(path[0])) != 0;
}

}  // namespace

int32_t PosixDirectories::FirstName(const std::string& path, bool withDirectories,
                                    std::string* name) {
  name->clear();
  const std::string hostPath = HostPath(path);
  struct stat facts {};
  if (stat(hostPath.c_str(), &facts) != 0) {
    return errno == ENOENT || errno == ENOTDIR ? kNoError : ErrorFromErrno(errno, hostPath);
  }
  if (S_ISDIR(facts.st_mode) && !withDirectories) return kNoError;
  const size_t separator = hostPath.find_last_of('/');
  const std::string last =
      separator == std::string::npos ? hostPath : hostPath.substr(separator + 1);
  if (last.empty()) {
    *name = ".";
  } else {
    FromUtf8(last, name);
  }
  return kNoError;
}

int32_t PosixDirectories::MakeDirectory(const std::string& path) {
  constexpr mode_t kNewDirectoryMode = 0777;
  const std::string hostPath = HostPath(path);
  return mkdir(hostPath.c_str(), kNewDirectoryMode) == 0 ? kNoError
                                                         : ErrorFromErrno(errno, hostPath);
}

int32_t PosixDirectories::ChangeDrive(const std::string& path) {
  if (!HasDrive(path)) return kNoError;
  const std::string drive = HostPath(path.substr(0, 2));
  struct stat facts {};
  return stat(drive.c_str(), &facts) == 0 ? kNoError : kPathNotFound;
}

int32_t PosixDirectories::ChangeDirectory(const std::string& path) {
  const std::string hostPath = HostPath(path);
  if (chdir(hostPath.c_str()) == 0) return kNoError;
  return errno == ENOENT ? kPathNotFound : ErrorFromErrno(errno, hostPath);
}

int32_t PosixDirectories::CurrentDirectory(std::string* path) {
  char text[PATH_MAX];
  if (getcwd(text, sizeof text) == nullptr) return ErrorFromErrno(errno, "");
  FromUtf8(text, path);
  return HostPath(*path) == text ? kNoError : kPathNotFound;
}

int32_t PosixDirectories::RootLength(const std::string& path) {
  if (HasDrive(path)) return path.size() > 2 && IsSeparator(path[2]) ? 3 : 2;
  return !path.empty() && IsSeparator(path[0]) ? 1 : 0;
}

bool PosixDirectories::FindLookalike(const std::string& path, Lookalike* lookalike) {
  HostLookalike found;
  HostPath(path, &found);
  if (found.other.empty()) return false;
  FromUtf8(FromHostPath(found.taken), &lookalike->taken);
  FromUtf8(FromHostPath(found.other), &lookalike->other);
  return true;
}

}  // namespace logchecker
