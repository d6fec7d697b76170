#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/Platform.h"
#include "tests/support/OwnWindowsFolder.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

class SystemFactsTest : public testing::Test {
 protected:
  OwnWindowsFolder windowsFolder_;
  TempFolder folder_;
  SystemFacts& system_ = Os().system;
};

TEST_F(SystemFactsTest, TheProgramKnowsItsNameAndPlace) {
  EXPECT_EQ(system_.ProgramName(), "platform_tests");
  const std::filesystem::path folder = system_.ProgramFolder();
  EXPECT_TRUE(folder.is_absolute()) << folder;
  EXPECT_TRUE(std::filesystem::exists(folder / "platform_tests") ||
              std::filesystem::exists(folder / "platform_tests.exe"))
      << folder;
}

TEST_F(SystemFactsTest, AnotherWindowsFolderCanBePut) {
  EXPECT_TRUE(system_.SetWindowsFolder(folder_.Path()));
  EXPECT_EQ(system_.WindowsFolder(), folder_.Path());
}

TEST_F(SystemFactsTest, TheWindowsFolderHasNoSeparatorAtItsEnd) {
  EXPECT_TRUE(system_.SetWindowsFolder(folder_.Path() + "/"));
  EXPECT_EQ(system_.WindowsFolder(), folder_.Path());
}

TEST_F(SystemFactsTest, TheWindowsFolderIsAbsolute) {
  std::string before;
  ASSERT_EQ(Os().directories.CurrentDirectory(&before), kNoError);
  ASSERT_EQ(Os().directories.ChangeDirectory(folder_.Path()), kNoError);
  EXPECT_TRUE(system_.SetWindowsFolder("sub"));
  ASSERT_EQ(Os().directories.ChangeDirectory(before), kNoError);
  EXPECT_EQ(std::filesystem::path(system_.WindowsFolder()).filename(), "sub");
  EXPECT_TRUE(std::filesystem::path(system_.WindowsFolder()).is_absolute());
}

TEST_F(SystemFactsTest, AProfileFileWithABareNameLiesInTheWindowsFolder) {
  EXPECT_EQ(Os().profiles.WriteString("s", "k", "v", "bare.ini"), kNoError);
  EXPECT_TRUE(windowsFolder_.folder().Exists("bare.ini"));
  EXPECT_EQ(Os().profiles.GetString("s", "k", "", 255, "bare.ini"), "v");
  EXPECT_EQ(Os().profiles.GetString("s", "k", "", 255, "BARE.INI"), "v");
}

TEST_F(SystemFactsTest, TheVersionSaysWhatTheSystemIs) {
  const OSVERSIONINFO version = system_.Version();
  EXPECT_EQ(version.dwOSVersionInfoSize, 148U);
  EXPECT_GT(version.dwMajorVersion, 0U);
  EXPECT_LE(version.dwPlatformId, 2U);
  EXPECT_EQ(version.description.empty(), version.dwPlatformId != 0);
}

}  // namespace
}  // namespace logchecker
