// The whole day's check with every call to the system failing in turn.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "cartstore/AudioSettings.h"
#include "cartstore/AudiowallParts.h"
#include "cartstore/FamilySettings.h"
#include "cartstore/OpenAudiowall.h"
#include "checking/ExportListViewToCSV.h"
#include "common/ErrorState.h"
#include "headless/DayCheck.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/LoadLogs.h"
#include "splitlogs/SplitLogTable.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46347;
constexpr int32_t kCarts = 4;

constexpr char kMismatch[] = "\r\n\"11:30\",";

struct Outcome {
  std::string csv;
  bool told = false;  // anything that a person reading the result would stumble over
  bool stopped = false;

  bool ShowsTheMismatch() const { return csv.find(kMismatch) != std::string::npos; }
};

class EveryCallFails : public StationTest {
 protected:
  EveryCallFails() {
    OpenStore(kCarts);
    PutCart(1, 30.0F);
    PutCart(2, 20.0F);
    WriteLog(1, kDay, "10:30:00|NTH  00000001 ONE\r\n\r\n11:30:00|NTH  00000002 TWO\r\n");
    WriteLog(2, kDay, "10:30:00|NTH  00000001 ONE\r\n\r\n11:30:00|NTH  00000001 ONE\r\n");
    std::string settings = "[General]\r\nNumberActiveSplits=2\r\nBreakDifferenceMS=400\r\n";
    for (const char* n : {"1", "2"}) {
      settings += std::string("LogSourceDirectory") + n + "=" + Path(std::string("logs") + n) +
                  "\r\nSplitName" + n + "=Split" + n + "\r\n";
    }
    settings += "[LogFileName]\r\n";
    for (const char* n : {"1", "2"}) {
      settings += std::string("DateFormat") + n + "=YYMMDD\r\nExtension" + n + "=LOG\r\n";
    }
    folder().WriteFile("VELKLT.INI", settings);
    Forget();
  }

  // As at the start of the program.
  void Forget() {
    gSplits.UnloadAll();
    RealPlatform().files.CloseAll();
    ResetGlobals();
    ui.messages.clear();
  }

  Outcome RunDay() {
    Outcome outcome;
    try {
      LoadGeneralSettings();
      LoadAudioSettings(kFamilySettingsFile, "");
      outcome.told |= OpenAudiowall(0, true) != 0;
      const DayReport report = CheckDay(kDay);
      outcome.told |= !report.trouble.empty() || report.splits.size() != 2;
      for (const SplitReport& split : report.splits) {
        outcome.told |= !split.loaded || !split.silentAdverts.empty();
      }
      outcome.told |= ExportListViewToCSV(&report.results, Path("out.csv"), ",", 0) == 0;
      CloseAudiowall();
    } catch (const RunTimeError& error) {
      EXPECT_NE(0, error.number());
      EXPECT_NE("", error.concerning());
      outcome.stopped = true;
    }
    outcome.told |= !ui.messages.empty();
    if (folder().Exists("out.csv")) outcome.csv = folder().ReadFile("out.csv");
    CloseAllFiles();
    return outcome;
  }
};

TEST_F(EveryCallFails, NothingIsMissedInSilenceAndTheNextRunIsSound) {
  const Outcome sound = RunDay();
  ASSERT_FALSE(sound.told);
  ASSERT_TRUE(sound.ShowsTheMismatch());
  const std::string settings = folder().ReadFile("VELKLT.INI");
  const std::string carts = folder().ReadFile("part1/Carts1.lst");
  for (const int32_t error : {kPermissionDenied, kDeviceIoError}) {
    bool failed = true;
    for (int n = 1; failed; ++n) {
      Forget();
      folder().WriteFile("out.csv", sound.csv);
      os.script.Clear();
      os.script.FailCall(n, error);
      const Outcome outcome = RunDay();
      failed = os.script.HasFailed();
      const std::string call = failed ? os.script.Calls().at(static_cast<size_t>(n) - 1) : "none";
      SCOPED_TRACE("error " + std::to_string(error) + " from call " + std::to_string(n) + ", " +
                   call);
      EXPECT_TRUE(outcome.told || outcome.stopped || outcome.ShowsTheMismatch()) << outcome.csv;
      EXPECT_EQ(settings, folder().ReadFile("VELKLT.INI"));
      // A number of carts that can't be read counts as the largest store, so the file may grow.
      EXPECT_EQ(carts, folder().ReadFile("part1/Carts1.lst").substr(0, carts.size()));

      Forget();
      os.script.Clear();
      const Outcome next = RunDay();
      EXPECT_FALSE(next.told || next.stopped);
      EXPECT_EQ(sound.csv, next.csv);
    }
  }
}

}  // namespace
}  // namespace logchecker
