// What stands on the disk after a replacement: links, modes, refused and full disks.
#include "platform/posix/Replacement.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "platform/Platform.h"
#include "tests/support/OwnWindowsFolder.h"

namespace logchecker {
namespace {

// No file can grow beyond `bytes` while it lives: as good as a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    rlimit limit = before_;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

// An ordinary user for as long as it lives; root may do everything.
class OrdinaryUser {
 public:
  OrdinaryUser() : before_(geteuid()) {
    if (before_ == 0) {
      EXPECT_EQ(0, seteuid(65534));
    }
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() { EXPECT_EQ(0, seteuid(before_)); }

 private:
  uid_t before_;
};

class ReplacementTest : public ::testing::Test {
 protected:
  ReplacementTest() { chmod(folder().Path().c_str(), 0777); }
  const TempFolder& folder() const { return windows_.folder(); }

  OwnWindowsFolder windows_;
};

TEST_F(ReplacementTest, TheModeAndTheLinkStay) {
  folder().WriteFile("real.ini", "old");
  chmod(folder().Path("real.ini").c_str(), 0640);
  std::filesystem::create_symlink("real.ini", folder().Path("link.ini"));
  EXPECT_EQ(kNoError, ReplaceFile(folder().Path("link.ini"), "new"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder().Path("link.ini")));
  EXPECT_EQ("new", folder().ReadFile("real.ini"));
  struct stat facts {};
  stat(folder().Path("real.ini").c_str(), &facts);
  EXPECT_EQ(0640U, facts.st_mode & 0777U);
  EXPECT_EQ(2U, folder().Count());
}

TEST_F(ReplacementTest, ADanglingLinkMakesTheFileItPointsTo) {
  std::filesystem::create_symlink("later.ini", folder().Path("link.ini"));
  EXPECT_EQ(kNoError, ReplaceFile(folder().Path("link.ini"), "new"));
  EXPECT_EQ("new", folder().ReadFile("later.ini"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder().Path("link.ini")));
}

TEST_F(ReplacementTest, ADanglingLinkPointsFromItsOwnFolderOrFromTheRoot) {
  const std::string outside = folder().Path("outside.ini");
  std::filesystem::create_directories(folder().Path("a/b"));
  std::filesystem::create_symlink(outside, folder().Path("a/rooted.ini"));
  std::filesystem::create_symlink("b/below.ini", folder().Path("a/link.ini"));
  EXPECT_EQ(kNoError, ReplaceFile(folder().Path("a/rooted.ini"), "rooted"));
  EXPECT_EQ("rooted", folder().ReadFile("outside.ini"));
  EXPECT_EQ(kNoError, ReplaceFile(folder().Path("a/link.ini"), "below"));
  EXPECT_EQ("below", folder().ReadFile("a/b/below.ini"));
}

TEST_F(ReplacementTest, AFullDiskLeavesTheOldSettingsWhole) {
  const std::string old = "[General]\r\nKey=" + std::string(3000, 'v') + "\r\n";
  folder().WriteFile("VELKLT.INI", old);
  {
    const FullDisk full(2000);
    EXPECT_EQ(kDiskFull, Os().profiles.WriteString("General", "Key2", "x", "VELKLT.INI"));
  }
  EXPECT_EQ(old, folder().ReadFile("VELKLT.INI"));
  EXPECT_EQ(1U, folder().Count());
  EXPECT_EQ(kNoError, Os().profiles.WriteString("General", "Key2", "x", "VELKLT.INI"));
  EXPECT_EQ(old + "Key2=x\r\n", folder().ReadFile("VELKLT.INI"));
}

TEST_F(ReplacementTest, AFullDiskLeavesTheOldOutputWhole) {
  folder().WriteFile("out.csv", "old");
  Files& files = Os().files;
  int16_t file = 0;
  files.FreeFile(&file);
  {
    const FullDisk full(2000);
    EXPECT_EQ(kNoError, files.OpenForOutput(file, folder().Path("out.csv")));
    const int32_t writing = files.Write(file, std::string(100000, 'x'));
    const int32_t closing = files.Close(file);
    EXPECT_EQ(kDiskFull, writing);
    EXPECT_EQ(kDiskFull, closing);
  }
  EXPECT_EQ("old", folder().ReadFile("out.csv"));
  EXPECT_EQ(1U, folder().Count());
}

TEST_F(ReplacementTest, ARecordThatFindsTheDiskFullIsError61) {
  Files& files = Os().files;
  int16_t file = 0;
  files.FreeFile(&file);
  EXPECT_EQ(kNoError, files.OpenRandom(file, folder().Path("list"), 300));
  char record[300] = {};
  {
    const FullDisk full(450);
    EXPECT_EQ(kNoError, files.PutRecord(file, 1, record));
    EXPECT_EQ(kDiskFull, files.PutRecord(file, 3, record));
  }
  files.Close(file);
}

TEST_F(ReplacementTest, AReadOnlyListFileIsOpenedForReading) {
  folder().WriteFile("list", std::string(300, 'r'));
  chmod(folder().Path("list").c_str(), 0444);
  const OrdinaryUser user;
  Files& files = Os().files;
  int16_t file = 0;
  files.FreeFile(&file);
  EXPECT_EQ(kNoError, files.OpenRandom(file, folder().Path("list"), 300));
  std::string record(300, ' ');
  EXPECT_EQ(kNoError, files.GetRecord(file, 1, record.data()));
  EXPECT_EQ(std::string(300, 'r'), record);
  EXPECT_EQ(kPathFileAccess, files.PutRecord(file, 1, record.data()));
  files.Close(file);
}

TEST_F(ReplacementTest, SettingsThatMayNotBeReadOrWrittenStayAsTheyAre) {
  folder().WriteFile("VELKLT.INI", "[General]\r\nKey=old\r\n");
  chmod(folder().Path("VELKLT.INI").c_str(), 0000);
  {
    const OrdinaryUser user;
    EXPECT_EQ("none", Os().profiles.GetString("General", "Key", "none", 255, "VELKLT.INI"));
    EXPECT_EQ(kPathFileAccess, Os().profiles.WriteString("General", "Key", "new", "VELKLT.INI"));
    int16_t file = 0;
    Os().files.FreeFile(&file);
    EXPECT_EQ(kPermissionDenied, Os().files.OpenForInput(file, folder().Path("VELKLT.INI")));
    EXPECT_EQ(kPermissionDenied, Os().files.OpenForOutput(file, folder().Path("VELKLT.INI")));
    Os().files.Close(file);
  }
  chmod(folder().Path("VELKLT.INI").c_str(), 0600);
  EXPECT_EQ("[General]\r\nKey=old\r\n", folder().ReadFile("VELKLT.INI"));
}

TEST_F(ReplacementTest, ADirectoryInTheFilesPlaceIsRefused) {
  std::filesystem::create_directory(folder().Path("VELKLT.INI"));
  EXPECT_EQ("none", Os().profiles.GetString("General", "Key", "none", 255, "VELKLT.INI"));
  EXPECT_NE(kNoError, Os().profiles.WriteString("General", "Key", "new", "VELKLT.INI"));
  EXPECT_EQ(kPathFileAccess, ReplaceFile(folder().Path("VELKLT.INI"), "x"));
}

TEST_F(ReplacementTest, ASettingsFileOf16MiBIsReadAndALargerOneIsNot) {
  const std::string head = "[General]\nKey=value\n;";
  const size_t limit = size_t{16} * 1024 * 1024;
  folder().WriteFile("A.INI", head + std::string(limit - head.size(), 'x'));
  folder().WriteFile("B.INI", head + std::string(limit + 1 - head.size(), 'x'));
  EXPECT_EQ("value", Os().profiles.GetString("General", "Key", "none", 255, "A.INI"));
  EXPECT_EQ("none", Os().profiles.GetString("General", "Key", "none", 255, "B.INI"));
}

}  // namespace
}  // namespace logchecker
