
#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitSettings.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr double kMorning = kDay + (9 * 3600 + 5 * 60 + 7) / 86400.0;

class LogFilesTest : public StationTest {
 protected:
  LogFilesTest() {
    LoadSplitSettings("none.ini", 0);
    os.now = kMorning;
  }
  std::string ErrFile() const { return folder().ReadFile("logs1/270115.ERR"); }
  static std::string Stamp() { return Os().clock.ShortDate(kDay) + " 09:05:07 "; }
  static bool Open(int32_t day) { return OpenLogFile(1, GetLogSourcePath(1, day, false)); }
};

TEST_F(LogFilesTest, NamesAreMadeOfDatePrefixAndExtension) {
  struct Case {
    const char* format;
    const char* preSuffix;
    int16_t suffix;
    const char* extension;
    const char* name;
  };
  const Case cases[] = {
      {"YYMMDD", "", 0, "LOG", "270115.LOG"},
      {"YYMMDD", "NTH", 0, "LOG", "NTH270115.LOG"},
      {"YYMMDD", "NTH", 1, "LOG", "270115NTH.LOG"},
      {"YYMMDD", "NTH", -1, "LOG", "270115NTH.LOG"},
      {"YYMMDD", "", 1, "LOG", "270115.LOG"},
      {"YYMMDD", "", 0, "", "270115."},
      {"DDMMYYYY", "A", 0, "TXT", "A15012027.TXT"},
      {"YYYY-MM-DD", "", 0, "LOG", "2027-01-15.LOG"},
      {"D.M", "", 0, "LOG", "15.1.LOG"},
      {"", "FIXED", 0, "LOG", "FIXED.LOG"},
      {"YYX", "", 0, "LOG", "YYX.LOG"},
  };
  for (const Case& row : cases) {
    SplitSettings& settings = SettingsOf(3);
    settings.DateFormat = row.format;
    settings.PreSuffix = row.preSuffix;
    settings.Suffix = row.suffix;
    settings.Extension = row.extension;
    EXPECT_EQ(row.name, GetLogFileName(3, kDay, false));
  }
}

TEST_F(LogFilesTest, PathsAreInTheSourceOrTheDestinationDirectory) {
  SettingsOf(2).LogSourceDirectory = "C:\\IN";
  SettingsOf(2).LogDestinationDirectory = "C:\\OUT";
  EXPECT_EQ("C:\\IN\\270115.LOG", GetLogSourcePath(2, kDay, false));
  EXPECT_EQ("C:\\IN\\270115.REC", GetLogSourcePath(2, kDay, true));
  EXPECT_EQ("C:\\OUT\\270115.LOG", GetLogDestinationPath(2, kDay, false));
  EXPECT_EQ("C:\\OUT\\270115.REC", GetLogDestinationPath(2, kDay, true));
}

TEST_F(LogFilesTest, ALogThatIsThereIsOpenedAndStamped) {
  WriteLog(1, kDay, "AB\n");
  EXPECT_TRUE(Open(kDay));
  const SplitSettings& settings = SettingsOf(1);
  EXPECT_GT(settings.LogFileNumber, 0);
  EXPECT_EQ(GetLogSourcePath(1, kDay, false), settings.CurrentLogPath);
  EXPECT_GT(settings.LogFileDay, 46000);
  EXPECT_GE(settings.LogFileSeconds, 0);
  EXPECT_EQ("AB", ReadTextLine(settings.LogFileNumber));
}

TEST_F(LogFilesTest, AMissingOrEmptyLogChangesNothing) {
  WriteLog(1, kDay, "AB\n");
  WriteLog(1, kDay + 2, "");
  ASSERT_TRUE(Open(kDay));
  const SplitSettings before = SettingsOf(1);
  for (const int32_t day : {kDay + 1, kDay + 2}) {
    EXPECT_FALSE(Open(day));
    EXPECT_EQ(before.LogFileNumber, SettingsOf(1).LogFileNumber);
    EXPECT_EQ(before.CurrentLogPath, SettingsOf(1).CurrentLogPath);
    EXPECT_EQ(before.LogFileDay, SettingsOf(1).LogFileDay);
  }
  EXPECT_EQ("AB", ReadTextLine(SettingsOf(1).LogFileNumber));
  EXPECT_FALSE(folder().Exists("logs1/270115.ERR"));
}

TEST_F(LogFilesTest, OpeningTheSamePathAgainRewindsIt) {
  WriteLog(1, kDay, "AB\nCD\n");
  ASSERT_TRUE(Open(kDay));
  EXPECT_EQ("AB", ReadTextLine(SettingsOf(1).LogFileNumber));
  ASSERT_TRUE(Open(kDay));
  EXPECT_EQ("AB", ReadTextLine(SettingsOf(1).LogFileNumber));
}

TEST_F(LogFilesTest, ALogThatCannotBeOpenedKeepsItsNumberAndLeavesAnErrLine) {
  WriteLog(1, kDay + 7, "AB\n");
  os.script.FailNamed("Files.OpenForInput", 1, kPermissionDenied);
  EXPECT_FALSE(Open(kDay + 7));
  EXPECT_GT(SettingsOf(1).LogFileNumber, 0);
  bool atEnd = false;
  EXPECT_EQ(kBadFileNumber, Os().files.EndOfFile(SettingsOf(1).LogFileNumber, &atEnd));
  // It bears today's name, though the log is of next week.
  EXPECT_EQ(Stamp() + "[Code:E70]Opening the log file during OpenLogFile\r\n", ErrFile());
  EXPECT_EQ(0, gErrorState.Number);
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LogFilesTest, AnOldLogThatCannotBeClosedLeavesAnErrLineAndTheNewOneOpens) {
  WriteLog(1, kDay, "AB\n");
  WriteLog(1, kDay + 1, "CD\n");
  ASSERT_TRUE(Open(kDay));
  os.script.Clear();
  os.script.FailNamed("Files.Close", 1, kDeviceIoError);
  EXPECT_TRUE(Open(kDay + 1));
  EXPECT_EQ(Stamp() + "[Code:E57]Closing the old log file during OpenLogFile\r\n", ErrFile());
  EXPECT_EQ("CD", ReadTextLine(SettingsOf(1).LogFileNumber));
}

TEST_F(LogFilesTest, WithoutAFreeNumberThereIsNoLog) {
  WriteLog(1, kDay, "AB\n");
  os.script.FailNamed("Files.FreeFile", 1, kTooManyFiles);
  EXPECT_FALSE(Open(kDay));
  EXPECT_EQ(0, SettingsOf(1).LogFileNumber);
  EXPECT_FALSE(folder().Exists("logs1/270115.ERR"));
}

TEST_F(LogFilesTest, AStampThatCannotBeReadIsToldUnlessTheFileIsJustGone) {
  WriteLog(1, kDay, "AB\n");
  os.script.FailNamed("Files.FileDateTime", 0, kFileNotFound);
  EXPECT_TRUE(Open(kDay));
  EXPECT_EQ(0, SettingsOf(1).LogFileDay);
  EXPECT_TRUE(ui.messages.empty());
  os.script.FailNamed("Files.FileDateTime", 0, kPermissionDenied);
  EXPECT_FALSE(Open(kDay));
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ(
      "There was a problem checking that the log file was stored locally and the error's "
      "description was reported as : \n\n\"Permission denied\" (70)",
      ui.messages[0].text);
  EXPECT_EQ("AB", ReadTextLine(SettingsOf(1).LogFileNumber));  // the file stays open
}

TEST_F(LogFilesTest, ErrLinesAreAddedAndTheirFailureIsSwallowed) {
  WriteLog(1, kDay, "AB\n");
  WriteLogError(1, "first");
  WriteLogError(1, "second");
  EXPECT_EQ(Stamp() + "first\r\n" + Stamp() + "second\r\n", ErrFile());
  os.script.FailNamed("Files.OpenForAppend", 0, kDiskFull);
  WriteLogError(1, "third");
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LogFilesTest, TheDestinationTakesErrLinesOnlyWithItsFlag) {
  WriteLog(1, kDay, "AB\n");
  Os().directories.MakeDirectory(Path("dest"));
  SettingsOf(1).LogDestinationDirectory = Path("dest");
  gUseDestinationDirectory = true;
  WriteLogError(1, "there");
  EXPECT_EQ(Stamp() + "there\r\n", folder().ReadFile("dest/270115.ERR"));
}

TEST_F(LogFilesTest, WhicheverCallFailsTheSplitHasALogOrNone) {
  WriteLog(1, kDay, "AB\n");
  WriteLog(1, kDay + 1, "CD\n");
  int n = 0;
  bool failed = true;
  while (failed) {
    CloseLogFiles();
    os.script.Clear();
    ASSERT_TRUE(Open(kDay));
    os.script.Clear();
    os.script.FailCall(++n, kDeviceIoError);
    const bool opened = Open(kDay + 1);
    failed = os.script.HasFailed();
    os.script.Clear();
    EXPECT_TRUE(!opened || ReadTextLine(SettingsOf(1).LogFileNumber) == "CD") << n;
    EXPECT_TRUE(opened || failed);
  }
  EXPECT_GE(n, 5);
}

TEST_F(LogFilesTest, ClosingAllLogsLeavesNoNumber) {
  WriteLog(1, kDay, "AB\n");
  WriteLog(10, kDay, "AB\n");
  ASSERT_TRUE(Open(kDay));
  ASSERT_TRUE(OpenLogFile(10, GetLogSourcePath(10, kDay, false)));
  CloseLogFiles();
  EXPECT_EQ(0, SettingsOf(1).LogFileNumber);
  EXPECT_EQ(0, SettingsOf(10).LogFileNumber);
  int16_t file = 0;
  Os().files.FreeFile(&file);
  EXPECT_EQ(1, file);
}

}  // namespace
}  // namespace logchecker
