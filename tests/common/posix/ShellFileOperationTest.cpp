// Copying with and without a question. On Windows the shell asks in windows of its own.
#include <filesystem>

#include "common/SystemHelpers.h"
#include "platform/ErrorNumbers.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class ShellFileOperationTest : public StationTest {
 protected:
  ShellFileOperationTest() {
    folder().WriteFile("from.txt", "new");
    folder().WriteFile("to.txt", "old");
  }
  int32_t Run(const char* to, bool move, bool confirm) {
    return ShellFileOperation(Path("from.txt"), Path(to), "Copying", 0, move, confirm);
  }
};

TEST_F(ShellFileOperationTest, WithoutConfirmNothingIsAsked) {
  EXPECT_EQ(0, Run("to.txt", false, false));
  EXPECT_EQ("new", folder().ReadFile("to.txt"));
  EXPECT_TRUE(folder().Exists("from.txt"));
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ShellFileOperationTest, WithConfirmAFileIsReplacedOnlyOnYes) {
  for (const bool move : {false, true}) {
    for (const MessageAnswer answer : {MessageAnswer::kNo, MessageAnswer::kCancel}) {
      ui.messages.clear();
      ui.answers = {answer};
      EXPECT_NE(0, Run("to.txt", move, true));
      EXPECT_EQ("old", folder().ReadFile("to.txt"));
      EXPECT_EQ("new", folder().ReadFile("from.txt"));
      ASSERT_EQ(1U, ui.messages.size());
      EXPECT_EQ(0U, ui.messages[0].text.find(Path("to.txt")));
      EXPECT_EQ(MessageIcon::kQuestion, ui.messages[0].icon);
      EXPECT_EQ(MessageButtons::kYesNoCancel, ui.messages[0].buttons);
    }
  }
  ui.answers = {MessageAnswer::kYes};
  EXPECT_EQ(0, Run("to.txt", true, true));
  EXPECT_EQ("new", folder().ReadFile("to.txt"));
  EXPECT_FALSE(folder().Exists("from.txt"));
}

TEST_F(ShellFileOperationTest, IntoAFolderTheFileKeepsItsName) {
  std::filesystem::create_directory(folder().Path("into"));
  folder().WriteFile("into/from.txt", "old");
  for (const char* to : {"into", "into/"}) {
    ui.messages.clear();
    ui.answers = {MessageAnswer::kNo};
    EXPECT_NE(0, Run(to, false, true));
    ASSERT_EQ(1U, ui.messages.size());
    EXPECT_EQ(0U, ui.messages[0].text.find(Path("into/from.txt"))) << "one separator";
  }
  EXPECT_EQ(0, Run("into", false, false));
  EXPECT_EQ("new", folder().ReadFile("into/from.txt"));
}

TEST_F(ShellFileOperationTest, WithConfirmANewFileNeedsNoQuestion) {
  EXPECT_EQ(0, Run("fresh.txt", false, true));
  EXPECT_EQ("new", folder().ReadFile("fresh.txt"));
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ShellFileOperationTest, ARefusalOfTheShellIsTheResult) {
  os.script.FailNamed("Shell.Run", 0, 4711);
  EXPECT_EQ(4711, Run("to.txt", false, true));
  EXPECT_EQ("old", folder().ReadFile("to.txt"));
}

}  // namespace
}  // namespace logchecker
