#include "platform/windows/WindowsEndings.h"

#include <atomic>
#include <filesystem>
#include <mutex>
#include <set>
#include <system_error>

#include "platform/Endings.h"
#include "platform/windows/WindowsApi.h"

namespace logchecker {

namespace {

struct VanishingFiles {
  std::mutex mutex;
  std::set<std::string> paths;
  std::string folder;
};

// Never destroyed: the console's thread may ask for it while the program ends.
VanishingFiles& Vanishing() {
  static auto& files = *new VanishingFiles;
  return files;
}

std::atomic<bool> gEndsWithSuccess(false);

// Called on a thread of its own, and the program ends behind it. The files are open, so that they
// go when the system closes them.
BOOL WINAPI OnConsoleEnding(DWORD /*event*/) {
  VanishingFiles& files = Vanishing();
  const std::lock_guard<std::mutex> lock(files.mutex);
  for (const std::string& path : files.paths) DeleteFileA(path.c_str());
  std::error_code failure;
  if (!files.folder.empty()) std::filesystem::remove_all(files.folder, failure);
  if (gEndsWithSuccess) TerminateProcess(GetCurrentProcess(), 0);
  return FALSE;
}

}  // namespace

void HoldVanishingFile(const std::string& path) {
  const std::lock_guard<std::mutex> lock(Vanishing().mutex);
  Vanishing().paths.insert(path);
}

void ReleaseVanishingFile(const std::string& path) {
  const std::lock_guard<std::mutex> lock(Vanishing().mutex);
  Vanishing().paths.erase(path);
}

void EndWithoutTemporaryFiles() { SetConsoleCtrlHandler(OnConsoleEnding, TRUE); }

void RemoveFolderWhenEnded(const std::string& folder) {
  const std::lock_guard<std::mutex> lock(Vanishing().mutex);
  Vanishing().folder = folder;
}

void EndWithSuccess() { gEndsWithSuccess = true; }

}  // namespace logchecker
