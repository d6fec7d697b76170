#include "platform/posix/PosixShell.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <fstream>

#include "platform/ErrorNumbers.h"
#include "platform/StationText.h"
#include "platform/posix/PosixErrors.h"
#include "platform/posix/Replacement.h"
#include "platform/posix/StationPath.h"
#include "platform/posix/UserFolders.h"

namespace logchecker {

namespace {

constexpr int32_t kDocumentsFolder = 5;

std::string LastPart(const std::string& path) {
  const size_t separator = path.find_last_of('/');
  return separator == std::string::npos ? path : path.substr(separator + 1);
}

bool IsDirectory(const std::string& path) {
  struct stat facts {};
  return stat(path.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
}

int32_t CopyFile(const std::string& from, const std::string& to,
                 const std::function<void(int64_t, int64_t)>& progress) {
  struct stat facts {};
  if (stat(from.c_str(), &facts) != 0) return ErrorFromErrno(errno, from);
  if (!S_ISREG(facts.st_mode)) return kPathFileAccess;
  const int source = open(from.c_str(), O_RDONLY | O_CLOEXEC);
  if (source < 0) return ErrorFromErrno(errno, from);
  Replacement copy;
  int32_t error = copy.Open(to);
  char part[65536];
  int64_t done = 0;
  while (error == kNoError) {
    const ssize_t count = read(source, part, sizeof part);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) error = kDeviceIoError;
    if (count <= 0) break;
    error = copy.Append(part, static_cast<size_t>(count));
    done += count;
    if (progress) progress(done, facts.st_size);
  }
  close(source);
  return error == kNoError ? copy.Commit() : error;
}

// XDG_DOCUMENTS_DIR of the user's directories file, written there as "$HOME/name" or "/name".
std::string DocumentsFolder() {
  const char* homeVariable = std::getenv("HOME");
  const std::string home = homeVariable == nullptr ? "" : homeVariable;
  std::ifstream directories(UserConfigFolder() + "/user-dirs.dirs");
  const std::string key = "XDG_DOCUMENTS_DIR=\"";
  std::string line;
  while (std::getline(directories, line)) {
    if (line.rfind(key, 0) != 0 || line.back() != '"') continue;
    std::string folder = line.substr(key.size(), line.size() - key.size() - 1);
    const std::string homeMark = "$HOME";
    if (folder.rfind(homeMark, 0) == 0) folder.replace(0, homeMark.size(), home);
    // A path has no separator at its end, except for the root's.
    while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
    if (!folder.empty() && folder[0] == '/') return folder;
  }
  return IsDirectory(home + "/Documents") ? home + "/Documents" : home;
}

}  // namespace

int32_t PosixShell::Run(const FileOperation& operation) {
  const std::string from = HostPath(operation.from);
  std::string to = HostPath(operation.to);
  if (IsDirectory(to)) to += (to.back() == '/' ? "" : "/") + LastPart(from);
  if (operation.confirm && operation.mayReplace && access(to.c_str(), F_OK) == 0) {
    std::string target;
    FromUtf8(to, &target);
    if (!operation.mayReplace(target)) return kCancelled;
  }
  if (operation.move && rename(from.c_str(), to.c_str()) == 0) return kNoError;
  int32_t error = CopyFile(from, to, operation.progress);
  if (error == kNoError && operation.move && unlink(from.c_str()) != 0) {
    error = ErrorFromErrno(errno, from);
  }
  return error;
}

int32_t PosixShell::SpecialFolder(int32_t folderNumber, std::string* path) {
  path->clear();
  if (folderNumber != kDocumentsFolder) return kPathNotFound;
  return FromUtf8(DocumentsFolder(), path) ? kNoError : kPathNotFound;
}

int32_t PosixShell::ShortPath(const std::string& path, std::string* shortPath) {
  *shortPath = path;
  return kNoError;
}

}  // namespace logchecker
