// The names of log folders and logs, where letter case tells them apart.
#include <gtest/gtest.h>

#include <filesystem>

#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int32_t kMarchDay = 46083;  // 2 March 2026

class LogNamesTest : public StationTest {
 protected:
  LogNamesTest() {
    OpenStore(20);
    WriteLog(1, kMarchDay, "06:00:00|NTH  00000001 ADVERT\r\n\r\n");
  }
  void Load() { gSplits(1).LoadLogFile(); }
};

TEST_F(LogNamesTest, AFolderThatCouldBeTwoIsToldAtTheFirstLoad) {
  std::filesystem::create_directory(Path("Logs1"));
  SettingsOf(1).LogSourceDirectory = Path("LOGS1");
  for (int i = 0; i < 2; ++i) {
    Load();
    ASSERT_EQ(1U, ui.messages.size());
  }
  EXPECT_EQ("The name \"" + Path("LOGS1") +
                "/260302.LOG\" fits two entries that differ only in capital letters:\n\"" +
                Path("Logs1") + "\" is used, and \"" + Path("logs1") +
                "\" is not.\nPlease rename one of them.",
            ui.messages[0].text);
  EXPECT_EQ(1, gSplits(1).gridLog.Rows());
}

TEST_F(LogNamesTest, AFolderThatIsMeantExactlyIsNotTold) {
  std::filesystem::create_directory(Path("Logs1"));
  Load();
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_EQ(4, gSplits(1).gridLog.Rows());
}

TEST_F(LogNamesTest, ALogWithoutAnExtensionIsFoundWithoutTheFullStop) {
  SettingsOf(1).Extension = "";
  EXPECT_EQ("260302.", GetLogFileName(1, kMarchDay, false));
  Load();
  EXPECT_EQ(0, SettingsOf(1).LogFileNumber);
  std::filesystem::rename(Path("logs1/260302.LOG"), Path("logs1/260302"));
  Load();
  EXPECT_NE(0, SettingsOf(1).LogFileNumber);
  EXPECT_EQ(4, gSplits(1).gridLog.Rows());
}

}  // namespace
}  // namespace logchecker
