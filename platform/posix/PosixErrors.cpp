#include "platform/posix/PosixErrors.h"

#include <sys/stat.h>

#include <cerrno>

#include "platform/ErrorNumbers.h"

namespace logchecker {

namespace {

int32_t MissingFileOrPath(const std::string& path) {
  const size_t separator = path.find_last_of('/');
  if (separator == std::string::npos || separator == 0) return kFileNotFound;
  struct stat facts {};
  const bool folderStands =
      stat(path.substr(0, separator).c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
  return folderStands ? kFileNotFound : kPathNotFound;
}

}  // namespace

int32_t ErrorFromErrno(int code, const std::string& path) {
  switch (code) {
    case 0:
      return kNoError;
    case ENOENT:
      return MissingFileOrPath(path);
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
      return kPathNotFound;
    case EISDIR:
    case EROFS:
    case EEXIST:
      return kPathFileAccess;
    case EACCES:
    case EPERM:
    case ETXTBSY:
      return kPermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return kDiskFull;
    case EMFILE:
    case ENFILE:
      return kTooManyFiles;
    default:
      return kDeviceIoError;
  }
}

}  // namespace logchecker
