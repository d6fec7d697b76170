// A file that must stay the same file, on a disk that is full.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "platform/Platform.h"
#include "platform/posix/Replacement.h"
#include "tests/support/TempFolder.h"
#include "tests/support/posix/AsUser.h"

namespace logchecker {
namespace {

constexpr size_t kDisk = size_t{128} * 1024;
constexpr size_t kOld = size_t{40} * 1024;

// A disk of its own at `path`, for this process alone.
bool MountSmallDisk(const std::string& path) {
  if (geteuid() == 0) {
    if (unshare(CLONE_NEWNS) != 0) return false;
  } else {
    const std::string user = "0 " + std::to_string(geteuid()) + " 1";
    const std::string group = "0 " + std::to_string(getegid()) + " 1";
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/uid_map") << user;
    std::ofstream("/proc/self/gid_map") << group;
  }
  return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         mount("none", path.c_str(), "tmpfs", 0, ("size=" + std::to_string(kDisk)).c_str()) == 0;
}

// Where no disk can be mounted a limit stands for it: no file may grow beyond the old one.
void LimitFiles() {
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit = {kOld + 1, kOld + 1};
  setrlimit(RLIMIT_FSIZE, &limit);
}

void FillUp(const std::string& path) {
  const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  const std::string part(4096, 'f');
  while (write(file, part.data(), part.size()) > 0) {
  }
  close(file);
}

// The number of the first step that went wrong, or 0.
int WriteOnAFullDisk(const TempFolder& folder) {
  const bool mounted = MountSmallDisk(folder.Path());
  const std::string old(kOld, 'o');
  const std::string file = folder.Path("settings.ini");
  folder.WriteFile("settings.ini", old);
  // The second name makes the file stay the same.
  std::filesystem::create_hard_link(file, folder.Path("other.ini"));
  if (mounted) {
    FillUp(folder.Path("filler"));
  } else {
    LimitFiles();
  }
  if (ReplaceFile(file, std::string(2 * kOld, 'n')) != kDiskFull) return 1;
  if (folder.ReadFile("settings.ini") != old || folder.ReadFile("other.ini") != old) return 2;
  if (ReplaceFile(file, std::string(kOld, 'm')) != kNoError) return 3;
  if (folder.ReadFile("other.ini") != std::string(kOld, 'm')) return 4;
  if (ReplaceFile(file, "short") != kNoError || folder.ReadFile("other.ini") != "short") return 5;
  return 0;
}

TEST(InPlaceTest, AFullDiskLeavesTheOldContentWhole) {
  const TempFolder folder;
  EXPECT_EQ(0, InAChild([&] { return WriteOnAFullDisk(folder); }));
}

}  // namespace
}  // namespace logchecker
