#include "platform/windows/WindowsErrors.h"

#include "platform/ErrorNumbers.h"
#include "platform/windows/WindowsApi.h"

namespace logchecker {

namespace {

// Not in every version of the system's header.
constexpr uint32_t kDiskQuotaExceeded = 1295;

}  // namespace

int32_t ErrorNumberOf(uint32_t code) {
  switch (code) {
    case ERROR_SUCCESS:
      return kNoError;
    case ERROR_FILE_NOT_FOUND:
      return kFileNotFound;
    // A drive, server or share that is not there is a path that is not found.
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_PATHNAME:
    case ERROR_DIRECTORY:
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_NETNAME_DELETED:
    case ERROR_NETWORK_UNREACHABLE:
    case ERROR_HOST_UNREACHABLE:
      return kPathNotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_WRITE_PROTECT:
      return kPermissionDenied;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return kPathFileAccess;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kDiskQuotaExceeded:
      return kDiskFull;
    case ERROR_TOO_MANY_OPEN_FILES:
      return kTooManyFiles;
    case ERROR_INVALID_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
      return kBadFileNumber;
    default:
      return kDeviceIoError;
  }
}

int32_t LastErrorNumber() {
  const int32_t error = ErrorNumberOf(GetLastError());
  // A call that failed must not pass for a success.
  return error == kNoError ? kDeviceIoError : error;
}

}  // namespace logchecker
