// Which settings have a say in which file, and what an opening changes of a split's record.
#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitSettings.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

// As the program starts, before any fixture sets it back.
const bool kDestinationFromTheStart = gUseDestinationDirectory;

class SplitLogFileTest : public StationTest {
 protected:
  SplitLogFileTest() {
    LoadSplitSettings("none.ini", 0);
    os.now = kDay;
    WriteLog(1, kDay, "AB\n");
    WriteLog(1, kDay + 1, "CD\n");
  }
  static bool Open(int32_t day) { return OpenLogFile(1, GetLogSourcePath(1, day, false)); }
};

TEST_F(SplitLogFileTest, TheDestinationDirectoryIsNotChosenFromTheStart) {
  EXPECT_FALSE(kDestinationFromTheStart);
}

TEST_F(SplitLogFileTest, ASplitBeginsWithoutALog) {
  for (int16_t n = 1; n <= kMostSplits; ++n) {
    const SplitSettings& settings = SettingsOf(n);
    EXPECT_EQ(0, settings.LogFileNumber) << n;
    EXPECT_EQ("", settings.CurrentLogPath) << n;
    EXPECT_EQ(0, settings.LogFileDay) << n;
    EXPECT_EQ(0, settings.LogFileSeconds) << n;
  }
}

TEST_F(SplitLogFileTest, DestinationAndReconcileExtensionHaveNoEffectOnAnyFile) {
  os.script.FailNamed("Files.OpenForInput", 0, kPermissionDenied);
  EXPECT_FALSE(Open(kDay));
  const std::string before = folder().ReadFile("logs1/270115.ERR");
  Os().directories.MakeDirectory(Path("dest"));
  SettingsOf(1).LogDestinationDirectory = Path("dest");
  SettingsOf(1).ReconcileExtension = "XYZ";
  EXPECT_FALSE(Open(kDay));
  EXPECT_EQ(before + before, folder().ReadFile("logs1/270115.ERR"));
  EXPECT_FALSE(folder().Exists("dest/270115.ERR"));
  os.script.Clear();
  folder().WriteFile("dest/270115.LOG", "DEST\n");
  folder().WriteFile("logs1/270115.XYZ", "XYZ\n");
  EXPECT_TRUE(Open(kDay));
  EXPECT_EQ("AB", ReadTextLine(SettingsOf(1).LogFileNumber));
}

TEST_F(SplitLogFileTest, AnOpeningChangesPathNumberAndStampAlone) {
  SplitSettings& settings = SettingsOf(1);
  settings.SplitName = "North";
  settings.PreSuffix = "";
  settings.Suffix = 1;
  settings.LogTXChainCode = "NTH";
  settings.LogUpdateInterval = 7;
  settings.LogDate = kDay + 5;
  const SplitSettings before = settings;
  const SplitSettings other = SettingsOf(2);
  ASSERT_TRUE(Open(kDay));
  EXPECT_EQ(before.SplitName, settings.SplitName);
  EXPECT_EQ(before.Extension, settings.Extension);
  EXPECT_EQ(before.DateFormat, settings.DateFormat);
  EXPECT_EQ(before.Suffix, settings.Suffix);
  EXPECT_EQ(before.PreSuffix, settings.PreSuffix);
  EXPECT_EQ(before.LogTXChainCode, settings.LogTXChainCode);
  EXPECT_EQ(before.ReconcileExtension, settings.ReconcileExtension);
  EXPECT_EQ(before.LogSourceDirectory, settings.LogSourceDirectory);
  EXPECT_EQ(before.LogDestinationDirectory, settings.LogDestinationDirectory);
  EXPECT_EQ(before.LogUpdateInterval, settings.LogUpdateInterval);
  EXPECT_EQ(before.LogDate, settings.LogDate) << "the day in hand is set by whoever loads it";
  EXPECT_EQ(other.CurrentLogPath, SettingsOf(2).CurrentLogPath);
  EXPECT_EQ(other.LogFileNumber, SettingsOf(2).LogFileNumber);
}

TEST_F(SplitLogFileTest, EachSplitKeepsALogOfItsOwnOpen) {
  WriteLog(2, kDay, "EF\n");
  ASSERT_TRUE(Open(kDay));
  ASSERT_TRUE(OpenLogFile(2, GetLogSourcePath(2, kDay, false)));
  EXPECT_NE(SettingsOf(1).LogFileNumber, SettingsOf(2).LogFileNumber);
  ASSERT_TRUE(Open(kDay + 1));
  EXPECT_EQ("EF", ReadTextLine(SettingsOf(2).LogFileNumber));
  EXPECT_EQ("CD", ReadTextLine(SettingsOf(1).LogFileNumber));
}

TEST_F(SplitLogFileTest, ErrorsOfTheStampAreToldExceptFileNotFound) {
  for (const int32_t error : {kInvalidCall, kBadFileNumber, kFileNotFound, kDeviceIoError,
                              kPermissionDenied, kPathFileAccess, kPathNotFound}) {
    ASSERT_TRUE(Open(kDay));
    ASSERT_GT(SettingsOf(1).LogFileDay, 0);
    SettingsOf(1).LogFileSeconds = 1;
    ui.messages.clear();
    os.script.FailNamed("Files.FileDateTime", 0, error);
    EXPECT_EQ(error == kFileNotFound, Open(kDay + 1)) << error;
    os.script.Clear();
    EXPECT_EQ(0, SettingsOf(1).LogFileDay) << "the stamp of the log before";
    EXPECT_EQ(0, SettingsOf(1).LogFileSeconds);
    EXPECT_EQ(GetLogSourcePath(1, kDay + 1, false), SettingsOf(1).CurrentLogPath);
    EXPECT_EQ("CD", ReadTextLine(SettingsOf(1).LogFileNumber)) << error;
    if (error == kFileNotFound) {
      EXPECT_TRUE(ui.messages.empty());
      continue;
    }
    ASSERT_EQ(1U, ui.messages.size()) << error;
    EXPECT_EQ(
        "There was a problem checking that the log file was stored locally and the error's "
        "description was reported as : \n\n\"" +
            ErrorText(error) + "\" (" + std::to_string(error) + ")",
        ui.messages[0].text);
  }
}

TEST_F(SplitLogFileTest, AnErrorLeftBehindBeforeTheOpeningIsNotTakenForItsOwn) {
  gErrorState = {kDiskFull, "left behind"};
  EXPECT_TRUE(Open(kDay));
  EXPECT_TRUE(ui.messages.empty());
}

}  // namespace
}  // namespace logchecker
