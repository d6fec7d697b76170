// A file of the system by its handle.
#pragma once

#include <string>
#include <utility>

#include "platform/FileTable.h"
#include "platform/windows/WindowsApi.h"

namespace logchecker {

// Other programs may read, write, rename and delete what is open here.
HANDLE OpenShared(const std::string& path, DWORD access, DWORD disposition);

class WindowsFile : public HostFile {
 public:
  explicit WindowsFile(HANDLE handle) : handle_(handle) {}
  ~WindowsFile() override { CloseNow(); }
  WindowsFile(const WindowsFile&) = delete;
  WindowsFile& operator=(const WindowsFile&) = delete;

  int32_t ReadAt(int64_t offset, void* data, size_t size, size_t* got) override;
  int32_t WriteAt(int64_t offset, const void* data, size_t size) override;
  int32_t Append(const void* data, size_t size) override;
  int32_t Length(int64_t* length) override;
  int32_t IsAt(const std::string& path, bool* isThis) override;
  int32_t Commit() override;

 protected:
  HANDLE handle() const { return handle_; }
  bool CloseNow();

 private:
  // Writes what follows `*done`, or the first part of it, and adds its size to `*done`.
  int32_t Put(const char* data, size_t size, OVERLAPPED* place, size_t* done);

  HANDLE handle_;
};

}  // namespace logchecker
