// What OpenLogFile asks of the system, step by step, and what each failing step leaves behind.
#include "common/Dates.h"
#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitSettings.h"
#include "tests/splitlogs/LogDay.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

using Calls = std::vector<std::string>;

class LogFileStepsTest : public StationTest {
 protected:
  LogFileStepsTest() {
    LoadSplitSettings("none.ini", 0);
    os.now = kDay;
    WriteLog(1, kDay, "AB\n");
    WriteLog(1, kDay + 1, "CD\n");
    WriteLog(1, kDay + 2, "");
  }
  // The old log is open; the new one is opened with its `failing`-th step refused.
  bool OpenWithFailure(int failing) {
    CloseLogFiles();
    os.script.Clear();
    EXPECT_TRUE(Open(kDay));
    ui.messages.clear();
    os.script.Clear();
    os.script.FailCall(failing, kPermissionDenied);
    const bool opened = Open(kDay + 1);
    calls = os.script.Calls();
    os.script.Clear();
    return opened;
  }
  static bool Open(int32_t day) { return OpenLogFile(1, GetLogSourcePath(1, day, false)); }
  // The next line of whatever file the split's number stands for; "" without one.
  static std::string NextLine() { return ReadTextLine(SettingsOf(1).LogFileNumber); }
  std::string ErrFile() const {
    return folder().Exists("logs1/270115.ERR") ? folder().ReadFile("logs1/270115.ERR") : "";
  }
  static std::string ErrLine(const std::string& message) {
    return Os().clock.ShortDate(kDay) + " 00:00:00 " + message + "\r\n";
  }

  Calls calls;
};

TEST_F(LogFileStepsTest, TheStepsAreTakenInOrder) {
  EXPECT_TRUE(OpenWithFailure(0));
  EXPECT_EQ((Calls{"Files.FileLength", "Files.Close", "Files.FreeFile", "Files.OpenForInput",
                   "Files.FileDateTime"}),
            calls);
  CloseLogFiles();
  os.script.Clear();
  Open(kDay);
  EXPECT_EQ(
      (Calls{"Files.FileLength", "Files.FreeFile", "Files.OpenForInput", "Files.FileDateTime"}),
      os.script.Calls());
}

TEST_F(LogFileStepsTest, TheStampIsTheFilesOwnInDaysAndSeconds) {
  const std::string path = GetLogSourcePath(1, kDay, false);
  ASSERT_TRUE(Open(kDay));
  double dateTime = 0;
  ASSERT_EQ(kNoError, Os().files.FileDateTime(path, &dateTime));
  EXPECT_EQ(SplitDateTime(dateTime).Days, SettingsOf(1).LogFileDay);
  EXPECT_EQ(SplitDateTime(dateTime).Seconds, SettingsOf(1).LogFileSeconds);
}

TEST_F(LogFileStepsTest, AMissingOrEmptyLogIsNoFurtherStep) {
  ASSERT_TRUE(Open(kDay));
  for (const int32_t day : {kDay + 2, kDay + 3}) {
    os.script.Clear();
    EXPECT_FALSE(Open(day));
    EXPECT_EQ(Calls{"Files.FileLength"}, os.script.Calls());
  }
}

TEST_F(LogFileStepsTest, ALengthThatCannotBeHadLeavesTheOldLogOpen) {
  EXPECT_FALSE(OpenWithFailure(1));
  EXPECT_EQ(GetLogSourcePath(1, kDay, false), SettingsOf(1).CurrentLogPath);
  EXPECT_EQ("AB", NextLine());
  EXPECT_EQ("", ErrFile());
}

TEST_F(LogFileStepsTest, ACloseThatFailsIsWrittenDownAndTheNewLogOpens) {
  EXPECT_TRUE(OpenWithFailure(2));
  EXPECT_EQ("CD", NextLine());
  EXPECT_EQ(ErrLine("[Code:E70]Closing the old log file during OpenLogFile"), ErrFile());
  EXPECT_EQ(0, gErrorState.Number);
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LogFileStepsTest, WithoutAFreeNumberTheOldLogIsClosedAndThereIsNone) {
  EXPECT_FALSE(OpenWithFailure(3));
  EXPECT_EQ(0, SettingsOf(1).LogFileNumber);
  EXPECT_EQ(0, SettingsOf(1).LogFileDay);
  EXPECT_EQ(0, SettingsOf(1).LogFileSeconds);
  EXPECT_EQ(GetLogSourcePath(1, kDay, false), SettingsOf(1).CurrentLogPath);
  EXPECT_EQ("", ErrFile());
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LogFileStepsTest, AllNumbersTakenIsNoFreeNumber) {
  int16_t number = 0;
  while (Os().files.FreeFile(&number) == kNoError) {
  }
  EXPECT_FALSE(Open(kDay));
  EXPECT_EQ(0, SettingsOf(1).LogFileNumber);
}

TEST_F(LogFileStepsTest, AnOpenThatFailsIsWrittenDownAndKeepsANumberWithoutAFile) {
  EXPECT_FALSE(OpenWithFailure(4));
  EXPECT_GT(SettingsOf(1).LogFileNumber, 0);
  EXPECT_EQ(GetLogSourcePath(1, kDay + 1, false), SettingsOf(1).CurrentLogPath);
  EXPECT_EQ(0, SettingsOf(1).LogFileDay);
  bool atEnd = false;
  EXPECT_EQ(kBadFileNumber, Os().files.EndOfFile(SettingsOf(1).LogFileNumber, &atEnd));
  // Nobody else is given the number in the meantime.
  int16_t another = 0;
  EXPECT_EQ(kNoError, Os().files.FreeFile(&another));
  EXPECT_NE(SettingsOf(1).LogFileNumber, another);
  EXPECT_EQ(ErrLine("[Code:E70]Opening the log file during OpenLogFile"), ErrFile());
  EXPECT_EQ(0, gErrorState.Number);
  EXPECT_TRUE(ui.messages.empty());
  // The number that was kept is closed by the next opening, without a complaint.
  EXPECT_TRUE(Open(kDay));
  EXPECT_EQ("AB", NextLine());
  EXPECT_EQ(ErrLine("[Code:E70]Opening the log file during OpenLogFile"), ErrFile());
}

TEST_F(LogFileStepsTest, AStampThatCannotBeReadIsShownAndTheFileStaysOpen) {
  EXPECT_FALSE(OpenWithFailure(5));
  EXPECT_EQ("CD", NextLine());
  EXPECT_EQ(0, SettingsOf(1).LogFileDay);
  EXPECT_EQ("", ErrFile());
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ(MessageIcon::kExclamation, ui.messages[0].icon);
}

TEST_F(LogFileStepsTest, AnErrLineThatCannotBeWrittenIsSwallowedWhicheverStepItIs) {
  os.script.FailNamed("Files.OpenForInput", 0, kPermissionDenied);
  ASSERT_FALSE(Open(kDay));
  // FileLength, FreeFile and OpenForInput come first; a close of the kept number after this.
  int n = 0;
  bool failed = true;
  while (failed) {
    CloseLogFiles();
    os.script.Clear();
    os.script.FailNamed("Files.OpenForInput", 0, kPermissionDenied);
    os.script.FailCall(++n + 3, kDiskFull);
    EXPECT_FALSE(Open(kDay)) << n;
    failed = os.script.Calls().size() >= static_cast<size_t>(n + 3);
    EXPECT_EQ(0, gErrorState.Number) << n;
  }
  EXPECT_EQ(5, n);  // a number, the opening, the writing, the close, and the run that passes
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LogFileStepsTest, TheErrFileTakesTodaysNameWithTheExtensionExchanged) {
  struct Case {
    const char* format;
    const char* preSuffix;
    const char* reconcile;
    const char* name;
  };
  const Case cases[] = {{"YYMMDD", "NTH", "REC", "logs1/NTH270115.ERR"},
                        {"YYYY.MM.DD", "", "REC", "logs1/2027.01.15.ERR"},
                        {"YYMMDD", "", "", "logs1/270115.ERR"},
                        {"YYMMDD", "", "A.B", "logs1/270115.A.ERR"}};
  for (const Case& row : cases) {
    SettingsOf(1).DateFormat = row.format;
    SettingsOf(1).PreSuffix = row.preSuffix;
    SettingsOf(1).ReconcileExtension = row.reconcile;
    WriteLogError(1, row.name);
    EXPECT_EQ(ErrLine(row.name), folder().ReadFile(row.name));
  }
}

}  // namespace
}  // namespace logchecker
