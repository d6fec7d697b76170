// How often a settings file is looked at.
#include <gtest/gtest.h>

#include "platform/Platform.h"
#include "platform/posix/FolderNames.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

int64_t profileTick = 0;
int profileLooks = 0;

class ProfileLooksTest : public ::testing::Test {
 protected:
  // The file counts as one that has not changed for long.
  ProfileLooksTest() {
    profileTick = 1;
    profileLooks = 0;
    gFolderCalls.time = [](time_t*) { return time(nullptr) + 3600; };
    gFolderCalls.tick = [] { return profileTick; };
    gFolderCalls.stat = [](const char* path, struct stat* facts) {
      ++profileLooks;
      return stat(path, facts);
    };
    Write("old");
  }
  ~ProfileLooksTest() override { gFolderCalls = FolderCalls(); }

  void Write(const std::string& value) { folder.WriteFile("a.ini", "[S]\nKey=" + value + "\n"); }
  std::string Value() const {
    return Os().profiles.GetString("S", "Key", "", 255, folder.Path("a.ini"));
  }

  TempFolder folder;
};

TEST_F(ProfileLooksTest, ASettledFileIsLookedAtOnceATick) {
  EXPECT_EQ("old", Value());
  const int afterFirst = profileLooks;
  EXPECT_EQ("old", Value());
  EXPECT_EQ("old", Value());
  EXPECT_EQ(afterFirst, profileLooks);
  Write("new and longer");
  ++profileTick;
  EXPECT_EQ("new and longer", Value());
  EXPECT_GT(profileLooks, afterFirst);
}

TEST_F(ProfileLooksTest, AFileThatHasJustChangedIsLookedAtEachTime) {
  gFolderCalls.time = time;
  EXPECT_EQ("old", Value());
  Write("new and longer");
  EXPECT_EQ("new and longer", Value());
}

TEST_F(ProfileLooksTest, AMissingFileIsLookedForEachTime) {
  const std::string other = folder.Path("b.ini");
  EXPECT_EQ("none", Os().profiles.GetString("S", "Key", "none", 255, other));
  folder.WriteFile("b.ini", "[S]\nKey=there\n");
  EXPECT_EQ("there", Os().profiles.GetString("S", "Key", "none", 255, other));
}

TEST_F(ProfileLooksTest, WhatIsWrittenIsReadInTheSameTick) {
  EXPECT_EQ("old", Value());
  EXPECT_EQ(kNoError, Os().profiles.WriteString("S", "Key", "written", folder.Path("a.ini")));
  EXPECT_EQ("written", Value());
}

}  // namespace
}  // namespace logchecker
