#include "platform/windows/WindowsErrors.h"

#include <gtest/gtest.h>

#include "platform/ErrorNumbers.h"
#include "platform/windows/WindowsApi.h"

namespace logchecker {
namespace {

TEST(WindowsErrorsTest, KnownCodes) {
  const struct {
    uint32_t code;
    int32_t number;
  } cases[] = {
      {ERROR_SUCCESS, kNoError},
      {ERROR_FILE_NOT_FOUND, kFileNotFound},
      {ERROR_PATH_NOT_FOUND, kPathNotFound},
      {ERROR_INVALID_DRIVE, kPathNotFound},
      {ERROR_BAD_NETPATH, kPathNotFound},
      {ERROR_DIRECTORY, kPathNotFound},
      {ERROR_ACCESS_DENIED, kPermissionDenied},
      {ERROR_SHARING_VIOLATION, kPermissionDenied},
      {ERROR_LOCK_VIOLATION, kPermissionDenied},
      {ERROR_ALREADY_EXISTS, kPathFileAccess},
      {ERROR_FILE_EXISTS, kPathFileAccess},
      {ERROR_DISK_FULL, kDiskFull},
      {ERROR_HANDLE_DISK_FULL, kDiskFull},
      {ERROR_TOO_MANY_OPEN_FILES, kTooManyFiles},
      {ERROR_INVALID_NAME, kBadFileNumber},
      {ERROR_CRC, kDeviceIoError},
  };
  for (const auto& row : cases) EXPECT_EQ(ErrorNumberOf(row.code), row.number) << row.code;
}

TEST(WindowsErrorsTest, AFailedCallIsNeverASuccess) {
  SetLastError(ERROR_SUCCESS);
  EXPECT_EQ(LastErrorNumber(), kDeviceIoError);
}

}  // namespace
}  // namespace logchecker
