#include "common/FolderHelpers.h"

#include "common/ErrorState.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class FolderHelpersTest : public StationTest {
 protected:
  static std::string CurrentDirectory() {
    std::string path;
    Os().directories.CurrentDirectory(&path);
    return path;
  }
};

TEST_F(FolderHelpersTest, AnythingThatIsListedExists) {
  folder().WriteFile("file", "x");
  EXPECT_TRUE(DirectoryExists(folder().Path()));
  EXPECT_TRUE(DirectoryExists(Path("file")));
  EXPECT_FALSE(DirectoryExists(Path("missing")));
  EXPECT_FALSE(DirectoryExists(""));
}

TEST_F(FolderHelpersTest, AListingThatFailsIsFalseAndStandsInTheErrorState) {
  os.script.FailNamed("Directories.FirstName", 0, kPermissionDenied);
  EXPECT_FALSE(DirectoryExists(folder().Path()));
  EXPECT_EQ(kPermissionDenied, gErrorState.Number);
  os.script.Clear();
  EXPECT_TRUE(DirectoryExists(folder().Path()));
  EXPECT_EQ(0, gErrorState.Number);
}

TEST_F(FolderHelpersTest, EveryMissingFolderOfAPathIsMade) {
  const std::string before = CurrentDirectory();
  EXPECT_TRUE(CreatePath(Path("a") + "\\b\\c", false));
  EXPECT_TRUE(folder().Exists("a/b/c"));
  EXPECT_TRUE(CreatePath(Path("a") + "\\b\\d\\", false));
  EXPECT_TRUE(folder().Exists("a/b/d"));
  EXPECT_TRUE(CreatePath(Path("a"), false));
  EXPECT_EQ(before, CurrentDirectory());
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_EQ(MousePointer::kDefault, ui.pointer);
  EXPECT_EQ(MousePointer::kHourglass, ui.pointers.front());
}

TEST_F(FolderHelpersTest, AFileInTheWayIsToldUnlessQuiet) {
  folder().WriteFile("file", "x");
  const std::string before = CurrentDirectory();
  EXPECT_FALSE(CreatePath(Path("file") + "\\a", true));
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_FALSE(CreatePath(Path("file") + "\\a", false));
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ(0U, ui.messages[0].text.find(
                    "There was a problem While Attempting to Create Directories on Destination "
                    "Drive. and the error's description was reported as : \n\n\""));
  EXPECT_EQ(MessageIcon::kExclamation, ui.messages[0].icon);
  EXPECT_EQ(before, CurrentDirectory());
}

TEST_F(FolderHelpersTest, OnlyAFolderThatExistsIsGoneThroughWhenItCannotBeMade) {
  const std::string before = CurrentDirectory();
  ASSERT_TRUE(CreatePath(Path("a"), false));
  os.script.FailNamed("Directories.MakeDirectory", 0, kPathFileAccess);
  EXPECT_TRUE(CreatePath(Path("a"), false)) << "each stands, and that is no failure";
  os.script.Clear();
  os.script.FailNamed("Directories.MakeDirectory", 0, kPermissionDenied);
  EXPECT_FALSE(CreatePath(Path("a"), false)) << "it stands, but the making met something else";
  EXPECT_EQ(1, os.script.CountOf("Directories.MakeDirectory")) << "the first ends the walk";
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ(
      "There was a problem While Attempting to Create Directories on Destination Drive. and the "
      "error's description was reported as : \n\n\"Permission denied\" (70)",
      ui.messages[0].text);
  EXPECT_EQ(before, CurrentDirectory());
  EXPECT_EQ(MousePointer::kDefault, ui.pointer);
}

TEST_F(FolderHelpersTest, WhicheverCallFailsTheCurrentDirectoryStays) {
  const std::string before = CurrentDirectory();
  int n = 0;
  int refused = 0;
  do {
    os.script.Clear();
    os.script.FailCall(++n, kPathNotFound);
    refused += CreatePath(Path("a") + "\\b" + std::to_string(n), false) ? 0 : 1;
    const bool failed = os.script.HasFailed();
    os.script.Clear();
    if (failed) Os().directories.ChangeDirectory(before);
    EXPECT_EQ(before, CurrentDirectory());
    if (!failed) break;
  } while (n < 100);
  EXPECT_GT(n, 5);
  EXPECT_LT(n, 100);
  EXPECT_EQ(static_cast<size_t>(refused), ui.messages.size());
  EXPECT_GT(refused, 2);
}

TEST_F(FolderHelpersTest, ANetworkPathThatCannotBeMadeIsLeftToTheUser) {
  os.script.FailNamed("Directories.MakeDirectory", 0, kPathNotFound);
  EXPECT_FALSE(CreatePath("\\\\server\\share\\x", true));
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_FALSE(CreatePath("\\\\server\\share\\x", false));
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ("You must manually create the path : \\\\server\\share\\x", ui.messages[0].text);
  EXPECT_EQ(MessageIcon::kInformation, ui.messages[0].icon);
  EXPECT_EQ(kProgramTitle, ui.messages[0].title);
}

}  // namespace
}  // namespace logchecker
