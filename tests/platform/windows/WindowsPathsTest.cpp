// What paths mean on this system alone.
#include <gtest/gtest.h>

#include <string>

#include "platform/Platform.h"
#include "platform/windows/WindowsApi.h"
#include "tests/support/OwnWindowsFolder.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

class WindowsPathsTest : public testing::Test {
 protected:
  ~WindowsPathsTest() override { files_.CloseAll(); }

  int16_t Number() {
    int16_t number = 0;
    EXPECT_EQ(files_.FreeFile(&number), kNoError);
    return number;
  }

  OwnWindowsFolder windowsFolder_;
  TempFolder folder_;
  Files& files_ = Os().files;
};

TEST_F(WindowsPathsTest, ADeviceIsWrittenInPlace) {
  const int16_t number = Number();
  EXPECT_EQ(files_.OpenForOutput(number, "NUL"), kNoError);
  EXPECT_EQ(files_.Write(number, "gone"), kNoError);
  EXPECT_EQ(files_.Close(number), kNoError);
}

TEST_F(WindowsPathsTest, AFileThatIsHeldForItselfIsDenied) {
  folder_.WriteFile("file.txt", "old");
  const std::string path = folder_.Path("file.txt");
  const HANDLE held =
      CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  int64_t length = 0;
  EXPECT_EQ(files_.OpenForInput(Number(), path), kPermissionDenied);
  EXPECT_EQ(files_.OpenForAppend(Number(), path), kPermissionDenied);
  EXPECT_EQ(files_.OpenForOutput(Number(), path), kPermissionDenied);
  EXPECT_EQ(files_.OpenRandom(Number(), path, 1), kPermissionDenied);
  EXPECT_EQ(files_.ProbeFile(path), kNoError) << "a probe asks for no rights";
  EXPECT_EQ(files_.FileLength(path, &length), kNoError);
  CloseHandle(held);
  EXPECT_EQ(folder_.Count(), 1U);
}

TEST_F(WindowsPathsTest, RandomAccessFallsBackToReading) {
  folder_.WriteFile("file.lst", "AAAABBBB");
  const std::string path = folder_.Path("file.lst");
  const HANDLE held =
      CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  const int16_t number = Number();
  EXPECT_EQ(files_.OpenRandom(number, path, 4), kNoError);
  char record[5] = "....";
  EXPECT_EQ(files_.GetRecord(number, 2, record), kNoError);
  EXPECT_STREQ(record, "BBBB");
  EXPECT_EQ(files_.PutRecord(number, 2, "XXXX"), kPathFileAccess);
  CloseHandle(held);
  EXPECT_EQ(files_.Close(number), kNoError);
  EXPECT_EQ(folder_.ReadFile("file.lst"), "AAAABBBB");
}

TEST_F(WindowsPathsTest, EveryNameOfAFileHasTheNewContent) {
  folder_.WriteFile("one.csv", "old and longer");
  const std::string path = folder_.Path("one.csv");
  ASSERT_TRUE(CreateHardLinkA(folder_.Path("two.csv").c_str(), path.c_str(), nullptr));
  for (const char* content : {"new", "newer, and longer than it was"}) {
    const int16_t number = Number();
    EXPECT_EQ(files_.OpenForOutput(number, path), kNoError);
    EXPECT_EQ(files_.Write(number, content), kNoError);
    EXPECT_EQ(files_.Close(number), kNoError);
    EXPECT_EQ(folder_.ReadFile("two.csv"), content);
  }
  EXPECT_EQ(folder_.Count(), 2U);
}

TEST_F(WindowsPathsTest, WhatAKilledProgramLeftGoesAndWhatIsBeingWrittenStays) {
  folder_.WriteFile("~logchecker-0123abcd.new", "left");
  const std::string path = folder_.Path("out.csv");
  const int16_t slow = Number();
  EXPECT_EQ(files_.OpenForOutput(slow, path), kNoError);
  EXPECT_FALSE(folder_.Exists("~logchecker-0123abcd.new"));
  EXPECT_EQ(files_.Write(slow, "slow"), kNoError);
  const int16_t quick = Number();
  EXPECT_EQ(files_.OpenForOutput(quick, path), kNoError);
  EXPECT_EQ(files_.Close(quick), kNoError);
  EXPECT_EQ(files_.Close(slow), kNoError);
  EXPECT_EQ(folder_.ReadFile("out.csv"), "slow");
  EXPECT_EQ(folder_.Count(), 1U);
}

TEST_F(WindowsPathsTest, OnlyAPathWithADriveHasOne) {
  Directories& directories = Os().directories;
  EXPECT_EQ(directories.ChangeDrive("C:\\logs"), kNoError);
  EXPECT_EQ(directories.ChangeDrive("c:"), kNoError);
  EXPECT_EQ(directories.ChangeDrive("\\logs"), kInvalidCall);
  EXPECT_EQ(directories.ChangeDrive("\\\\server\\share"), kInvalidCall);
  EXPECT_EQ(directories.ChangeDrive(""), kInvalidCall);
}

TEST_F(WindowsPathsTest, TheRootOfAServerIsItsShare) {
  Directories& directories = Os().directories;
  EXPECT_EQ(directories.RootLength("\\\\server\\share\\logs"), 15);
  EXPECT_EQ(directories.RootLength("\\\\server\\share"), 14);
  EXPECT_EQ(directories.RootLength("\\\\server"), 8);
}

TEST_F(WindowsPathsTest, ADrivesRootIsADirectoryThatIsTaken) {
  std::string name;
  EXPECT_EQ(Os().directories.FirstName("C:\\", true, &name), kNoError);
  EXPECT_EQ(name, ".");
  EXPECT_EQ(Os().directories.MakeDirectory("C:\\"), kPathFileAccess);
}

TEST_F(WindowsPathsTest, TheWindowsFolderHasANameThatTheCodePageCanHold) {
  const std::string before = Os().system.WindowsFolder();
  EXPECT_FALSE(Os().system.SetWindowsFolder("C:\\caf?"));
  EXPECT_FALSE(Os().system.SetWindowsFolder(""));
  EXPECT_EQ(Os().system.WindowsFolder(), before);
  EXPECT_TRUE(Os().system.SetWindowsFolder("C:\\"));
  EXPECT_EQ(Os().system.WindowsFolder(), "C:\\");
}

}  // namespace
}  // namespace logchecker
