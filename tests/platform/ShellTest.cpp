#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/Platform.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

class ShellTest : public testing::Test {
 protected:
  ShellTest() {
    folder_.WriteFile("file.txt", "text");
    std::filesystem::create_directory(folder_.Path("sub"));
  }

  int32_t Run(std::string_view from, std::string_view to, bool move) {
    FileOperation operation;
    operation.from = folder_.Path(from);
    operation.to = folder_.Path(to);
    operation.progressTitle = "Copying";
    operation.move = move;
    return shell_.Run(operation);
  }

  TempFolder folder_;
  Shell& shell_ = Os().shell;
};

TEST_F(ShellTest, CopiesIntoAFolder) {
  EXPECT_EQ(Run("file.txt", "sub", false), 0);
  EXPECT_EQ(folder_.ReadFile("sub/file.txt"), "text");
  EXPECT_EQ(folder_.ReadFile("file.txt"), "text");
}

TEST_F(ShellTest, CopiesToAFile) {
  EXPECT_EQ(Run("file.txt", "copy.txt", false), 0);
  EXPECT_EQ(folder_.ReadFile("copy.txt"), "text");
  EXPECT_EQ(folder_.ReadFile("file.txt"), "text");
}

TEST_F(ShellTest, ReplacesWithoutAsking) {
  folder_.WriteFile("sub/file.txt", "an older and longer text");
  EXPECT_EQ(Run("file.txt", "sub", false), 0);
  EXPECT_EQ(folder_.ReadFile("sub/file.txt"), "text");
}

TEST_F(ShellTest, MovesIntoAFolder) {
  EXPECT_EQ(Run("file.txt", "sub", true), 0);
  EXPECT_EQ(folder_.ReadFile("sub/file.txt"), "text");
  EXPECT_FALSE(folder_.Exists("file.txt"));
}

TEST_F(ShellTest, MovesToAnotherName) {
  EXPECT_EQ(Run("file.txt", "sub/other.txt", true), 0);
  EXPECT_EQ(folder_.ReadFile("sub/other.txt"), "text");
  EXPECT_FALSE(folder_.Exists("file.txt"));
}

TEST_F(ShellTest, AMissingFileIsAFailureAndLeavesNothing) {
  EXPECT_NE(Run("missing.txt", "sub", false), 0);
  EXPECT_NE(Run("missing.txt", "sub/other.txt", false), 0);
  EXPECT_TRUE(std::filesystem::is_empty(folder_.Path("sub")));
}

TEST_F(ShellTest, TheDocumentsFolderIsThere) {
  constexpr int32_t kDocuments = 5;
  std::string path;
  EXPECT_EQ(shell_.SpecialFolder(kDocuments, &path), kNoError);
  EXPECT_FALSE(path.empty());
}

TEST_F(ShellTest, AnUnknownFolderIsAFailure) {
  std::string path = "unset";
  EXPECT_NE(shell_.SpecialFolder(9999, &path), kNoError);
  EXPECT_EQ(path, "");
}

TEST_F(ShellTest, TheShortPathLeadsToTheSameFile) {
  folder_.WriteFile("a rather long name.text", "four");
  std::string path;
  EXPECT_EQ(shell_.ShortPath(folder_.Path("a rather long name.text"), &path), kNoError);
  int64_t length = 0;
  EXPECT_EQ(Os().files.FileLength(path, &length), kNoError) << path;
  EXPECT_EQ(length, 4);
}

}  // namespace
}  // namespace logchecker
