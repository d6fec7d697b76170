// Drives and shares are folders below the Windows folder here, so their rules can be seen on the
// disk.
#include "common/DatePicture.h"
#include "common/DebugLog.h"
#include "common/ErrorState.h"
#include "common/FolderHelpers.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class DrivesTest : public StationTest {
 protected:
  void MakeFolder(const std::string& name) {
    ASSERT_EQ(kNoError, Os().directories.MakeDirectory(Path(name)));
  }
};

TEST_F(DrivesTest, ANetworkPathIsMadeInOneStep) {
  MakeFolder("drives");
  MakeFolder("drives/unc");
  MakeFolder("drives/unc/server");
  MakeFolder("drives/unc/server/share");
  EXPECT_FALSE(CreatePath("\\\\SERVER\\SHARE\\new", false));  // it had to be made
  EXPECT_TRUE(folder().Exists("drives/unc/server/share/new"));
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_TRUE(CreatePath("\\\\SERVER\\SHARE\\new", false));
  EXPECT_EQ(0, gErrorState.Number);
  EXPECT_FALSE(CreatePath("\\\\SERVER\\SHARE\\a\\b", true));
  EXPECT_FALSE(folder().Exists("drives/unc/server/share/a"));
}

TEST_F(DrivesTest, AMissingDriveIsNotFound) {
  EXPECT_FALSE(CreatePath("Q:\\A\\B", true));
  EXPECT_FALSE(DirectoryExists("Q:"));
  EXPECT_FALSE(DirectoryExists("Q:\\"));
}

TEST_F(DrivesTest, TheBareDriveAndShareAreListedWithASeparator) {
  MakeFolder("drives");
  MakeFolder("drives/c");
  MakeFolder("drives/unc");
  MakeFolder("drives/unc/server");
  MakeFolder("drives/unc/server/share");
  gDebugLevel = -1;
  os.now = 46402.5;
  EXPECT_TRUE(DirectoryExists("C:"));
  EXPECT_TRUE(DirectoryExists("\\\\server\\share"));
  EXPECT_FALSE(DirectoryExists("\\\\server\\share\\x"));
  gDebugLevel = 0;
  const std::string log = folder().ReadFile("drives/c/common_tests.20270115.log");
  EXPECT_NE(std::string::npos, log.find("12:00:00 Start DirectoryExists\r\n"
                                        "12:00:00     Call Dir(C:\\, vbDirectory)\r\n"
                                        "12:00:00 End DirectoryExists (True)\r\n"));
  EXPECT_NE(std::string::npos, log.find("Call Dir(\\\\server\\share\\, vbDirectory)"));
  EXPECT_NE(std::string::npos, log.find("Call Dir(\\\\server\\share\\x, vbDirectory)"));
  EXPECT_NE(std::string::npos, log.find("End DirectoryExists (False)"));
}

TEST_F(DrivesTest, AnEmptyPathIsNotListedAndLeavesTheTraceIndented) {
  MakeFolder("drives");
  MakeFolder("drives/c");
  os.now = 46402.5;
  gDebugLevel = -1;
  gDebugLogName = "trace";
  EXPECT_FALSE(DirectoryExists(""));
  EXPECT_EQ(1, gDebugIndent);
  EXPECT_EQ(0, os.script.CountOf("Directories.FirstName"));
  EXPECT_FALSE(DirectoryExists("C:\\x"));
  EXPECT_EQ(1, gDebugIndent) << "any other path goes one deeper and comes back";
  EXPECT_EQ(
      "12:00:00 Start DirectoryExists\r\n12:00:00     Start DirectoryExists\r\n"
      "12:00:00         Call Dir(C:\\x, vbDirectory)\r\n"
      "12:00:00     End DirectoryExists (False)\r\n",
      folder().ReadFile("drives/c/trace.20270115.log"));
}

TEST_F(DrivesTest, TheDebugLogWritesWhatItsLevelLets) {
  MakeFolder("drives");
  MakeFolder("drives/c");
  os.now = 46402.5;
  gDebugLogName = "trace";
  WriteDebugLog("off", -1);
  EXPECT_FALSE(folder().Exists("drives/c/trace.20270115.log"));
  gDebugLevel = 3;
  WriteDebugLog("three", 3);
  WriteDebugLog("four", 4);
  WriteDebugLog("usual", -1);  // counts as five
  gDebugLevel = 5;
  WriteDebugLog("usual again", -1);
  WriteDebugLogIndented("in", 1, IndentStep::kDeeperAfter);
  WriteDebugLogIndented("deeper", 1, IndentStep::kDeeperAfter);
  WriteDebugLogIndented("out", 1, IndentStep::kBackBefore);
  WriteDebugLogIndented("reset", 1, IndentStep::kReset);
  WriteDebugLogIndented("never below", 1, IndentStep::kBackBefore);
  EXPECT_EQ(
      "12:00:00 three\r\n12:00:00 usual again\r\n12:00:00 in\r\n12:00:00     deeper\r\n"
      "12:00:00     out\r\n12:00:00 reset\r\n12:00:00 never below\r\n",
      folder().ReadFile("drives/c/trace.20270115.log"));
  EXPECT_EQ(0, gDebugIndent);
}

}  // namespace
}  // namespace logchecker
