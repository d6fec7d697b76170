// Files by number on the host's file system.
#pragma once

#include <memory>
#include <string>

#include "platform/FileTable.h"

namespace logchecker {

class PosixFiles : public FileTable {
 public:
  int32_t FileLength(const std::string& path, int64_t* length) override;
  int32_t FileDateTime(const std::string& path, double* dateTime) override;
  FileStamp StampOf(const std::string& path) override;
  int32_t ProbeFile(const std::string& path) override;

 protected:
  int32_t OpenHost(HostMode mode, const std::string& path,
                   std::unique_ptr<HostFile>* file) override;
};

}  // namespace logchecker
