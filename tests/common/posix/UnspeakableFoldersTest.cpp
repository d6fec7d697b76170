// Folders whose names the station's code page can't hold.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "common/FolderHelpers.h"
#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "platform/posix/StationPath.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

class UnspeakableFolders : public testing::Test {
 protected:
  UnspeakableFolders()
      : windowsFolder_(HostWindowsFolder()), current_(std::filesystem::current_path()) {}
  ~UnspeakableFolders() override {
    SetHostWindowsFolder(windowsFolder_);
    std::filesystem::current_path(current_);
  }
  std::filesystem::path Host() const { return ToHostPath(folder_.Path()); }

  TempFolder folder_;

 private:
  std::string windowsFolder_;
  std::filesystem::path current_;
};

TEST_F(UnspeakableFolders, TheSettingsAreFoundWhereverTheHomeIs) {
  const std::string letters = "\xC5\x82ukasz/\xD0\xB4\xD0\xBE\xD0\xBC";
  for (const std::string& home : {letters, std::string(200, 'x')}) {
    SetHostWindowsFolder(Host() / home / "velmar");
    const std::string file = GetWindowsFolder() + "\\VELKLT.INI";
    EXPECT_EQ(-1, GetFileLength(file));
    EXPECT_EQ(kNoError, Os().profiles.WriteString("General", "A", "1", "VELKLT.INI"));
    EXPECT_EQ(16, GetFileLength(file)) << file;
  }
}

TEST_F(UnspeakableFolders, TheCurrentDirectoryIsFoundAgain) {
  std::filesystem::create_directory(Host() / "\xCE\xA9");
  std::filesystem::current_path(Host() / "\xCE\xA9");
  EXPECT_TRUE(CreatePath(folder_.Path("a\\b"), true));
  EXPECT_EQ(Host() / "\xCE\xA9", std::filesystem::current_path());
  EXPECT_TRUE(std::filesystem::is_directory(Host() / "a" / "b"));
}

TEST_F(UnspeakableFolders, OfTwoThatLookTheSameTheCurrentOneIsNotTakenForTheOther) {
  std::filesystem::create_directory(Host() / "\xCE\xA6");
  std::filesystem::create_directory(Host() / "\xCE\xA9");
  std::filesystem::current_path(Host() / "\xCE\xA9");
  std::string directory;
  EXPECT_EQ(kPathNotFound, Os().directories.CurrentDirectory(&directory));
}

}  // namespace
}  // namespace logchecker
