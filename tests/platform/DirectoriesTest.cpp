#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/Platform.h"
#include "tests/support/OwnWindowsFolder.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

class DirectoriesTest : public testing::Test {
 protected:
  DirectoriesTest() {
    EXPECT_EQ(directories_.CurrentDirectory(&before_), kNoError);
    folder_.WriteFile("file.txt", "x");
    std::filesystem::create_directory(folder_.Path("sub"));
  }
  ~DirectoriesTest() override { directories_.ChangeDirectory(before_); }

  std::string FirstName(const std::string& path, bool withDirectories) {
    std::string name = "unset";
    EXPECT_EQ(directories_.FirstName(path, withDirectories, &name), kNoError) << path;
    return name;
  }

  OwnWindowsFolder windowsFolder_;
  TempFolder folder_;
  Directories& directories_ = Os().directories;
  std::string before_;
};

TEST_F(DirectoriesTest, TheFirstNameOfAFileIsItsName) {
  EXPECT_EQ(FirstName(folder_.Path("file.txt"), false), "file.txt");
  EXPECT_EQ(FirstName(folder_.Path("file.txt"), true), "file.txt");
}

TEST_F(DirectoriesTest, ADirectoryCountsOnlyWhereItIsAskedFor) {
  EXPECT_EQ(FirstName(folder_.Path("sub"), true), "sub");
  EXPECT_EQ(FirstName(folder_.Path("sub"), false), "");
}

TEST_F(DirectoriesTest, ASeparatorOrADotAtTheEndMeansTheDirectoryItself) {
  for (const char* end : {"/", "\\", "/.", "\\."}) {
    EXPECT_EQ(FirstName(folder_.Path("sub") + end, true), ".") << end;
    EXPECT_EQ(FirstName(folder_.Path("sub") + end, false), "") << end;
    EXPECT_EQ(FirstName(folder_.Path("missing") + end, true), "") << end;
  }
}

TEST_F(DirectoriesTest, AFileIsNoDirectory) {
  EXPECT_EQ(FirstName(folder_.Path("file.txt") + "\\", true), "");
  EXPECT_EQ(FirstName(folder_.Path("file.txt") + "\\.", true), "");
  EXPECT_EQ(FirstName(folder_.Path("file.txt") + "\\x", true), "");
}

TEST_F(DirectoriesTest, WhatIsMissingHasNoNameAndIsNoError) {
  EXPECT_EQ(FirstName(folder_.Path("missing"), true), "");
  EXPECT_EQ(FirstName(folder_.Path("missing/file.txt"), true), "");
  EXPECT_EQ(FirstName("Q:\\missing", true), "");
  EXPECT_EQ(FirstName("Q:\\", true), "");
}

TEST_F(DirectoriesTest, MakesADirectory) {
  EXPECT_EQ(directories_.MakeDirectory(folder_.Path("new")), kNoError);
  EXPECT_TRUE(std::filesystem::is_directory(folder_.Path("new")));
}

TEST_F(DirectoriesTest, ANameThatIsTakenIsAnAccessError) {
  EXPECT_EQ(directories_.MakeDirectory(folder_.Path("sub")), kPathFileAccess);
  EXPECT_EQ(directories_.MakeDirectory(folder_.Path("SUB")), kPathFileAccess);
  EXPECT_EQ(directories_.MakeDirectory(folder_.Path("file.txt")), kPathFileAccess);
}

TEST_F(DirectoriesTest, NoDirectoryIsMadeInAMissingOne) {
  EXPECT_EQ(directories_.MakeDirectory(folder_.Path("missing/new")), kPathNotFound);
  EXPECT_EQ(directories_.MakeDirectory("Q:\\new"), kPathNotFound);
}

TEST_F(DirectoriesTest, APathWithoutARootCountsFromTheCurrentDirectory) {
  EXPECT_EQ(directories_.ChangeDirectory(folder_.Path("sub")), kNoError);
  EXPECT_EQ(directories_.MakeDirectory("new"), kNoError);
  EXPECT_TRUE(std::filesystem::is_directory(folder_.Path("sub/new")));
  EXPECT_EQ(directories_.ChangeDirectory("new"), kNoError);
  std::string current;
  EXPECT_EQ(directories_.CurrentDirectory(&current), kNoError);
  EXPECT_TRUE(std::filesystem::equivalent(current, folder_.Path("sub/new"))) << current;
  EXPECT_EQ(FirstName("..", true).empty(), false);
}

TEST_F(DirectoriesTest, TheCurrentDirectoryCanBeGoneBackTo) {
  std::string first;
  EXPECT_EQ(directories_.ChangeDirectory(folder_.Path()), kNoError);
  EXPECT_EQ(directories_.CurrentDirectory(&first), kNoError);
  EXPECT_EQ(directories_.ChangeDirectory("sub"), kNoError);
  EXPECT_EQ(directories_.ChangeDirectory(first), kNoError);
  std::string second;
  EXPECT_EQ(directories_.CurrentDirectory(&second), kNoError);
  EXPECT_EQ(first, second);
}

TEST_F(DirectoriesTest, OnlyADirectoryCanBeEntered) {
  EXPECT_EQ(directories_.ChangeDirectory(folder_.Path("missing")), kPathNotFound);
  EXPECT_EQ(directories_.ChangeDirectory(folder_.Path("missing/sub")), kPathNotFound);
  EXPECT_EQ(directories_.ChangeDirectory(folder_.Path("file.txt")), kPathNotFound);
  std::string current;
  EXPECT_EQ(directories_.CurrentDirectory(&current), kNoError);
  EXPECT_EQ(current, before_);
}

TEST_F(DirectoriesTest, TheRootOfThePath) {
  const struct {
    const char* path;
    int32_t length;
  } cases[] = {
      {"C:\\", 3}, {"c:/logs", 3}, {"C:", 2},   {"C:logs", 2}, {"\\logs", 1}, {"/logs", 1},
      {"/", 1},    {"logs", 0},    {"a\\b", 0}, {"", 0},       {"1:\\", 0},
  };
  for (const auto& row : cases)
    EXPECT_EQ(directories_.RootLength(row.path), row.length) << row.path;
}

TEST_F(DirectoriesTest, ADriveThatIsNotThereCannotBeHad) {
  EXPECT_EQ(directories_.ChangeDrive("Q:\\logs"), kPathNotFound);
  EXPECT_EQ(directories_.ChangeDrive("Q:"), kPathNotFound);
}

}  // namespace
}  // namespace logchecker
