// A process that is killed while it writes: settings, list files and exports are whole afterwards,
// and the next start works.
#include <gtest/gtest.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <functional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "cartstore/FamilySettings.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "checking/ExportListViewToCSV.h"
#include "common/GeneralSettings.h"
#include "platform/Platform.h"
#include "shell/LoadGeneralSettings.h"
#include "tests/support/ReadCSV.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int kRounds = 1000;
constexpr int kRows = 200;
constexpr int32_t kCarts = 400;
constexpr char kOtherLines[] = "; ours\r\n[General]\r\nNumberActiveSplits=2\r\n";
constexpr char kLastLines[] = "SplitName1=Nord\r\n[LogFileName]\r\nExtension1=LOG\r\n";

class KillTest : public StationTest {
 protected:
  KillTest() {
    OpenStore(kCarts);
    CloseAudiowall();
    Os().files.CloseAll();
    folder().WriteFile("VELKLT.INI",
                       std::string(kOtherLines) + "BreakDifferenceMS=1\r\n" + kLastLines);
  }

  // A time after which `work` may well have been done once or twice, on a slow disk too.
  static int LatestMoment(const std::function<void()>& work) {
    constexpr int kLeast = 5000;  // microseconds
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::micro> once = std::chrono::steady_clock::now() - start;
    return std::max(kLeast, static_cast<int>(3 * once.count()));
  }
  // Runs `work` over and over in a process of its own, until the system's timer ends that.
  void RunAndKill(int microseconds, const std::function<void(int)>& work) {
    const pid_t process = fork();
    ASSERT_GE(process, 0);
    if (process == 0) {
      std::signal(SIGALRM, SIG_DFL);
      itimerval timer{};
      timer.it_value.tv_sec = microseconds / 1000000;
      timer.it_value.tv_usec = microseconds % 1000000;
      setitimer(ITIMER_REAL, &timer, nullptr);
      for (int n = 1;; ++n) work(n);
    }
    int status = 0;
    ASSERT_EQ(process, waitpid(process, &status, 0));
    ASSERT_TRUE(WIFSIGNALED(status));
    ASSERT_EQ(SIGALRM, WTERMSIG(status));
  }

  void WriteSettings(int n) {
    Os().profiles.WriteString("General", "BreakDifferenceMS", std::to_string(n), "VELKLT.INI");
  }
  void FillListFile() {
    std::filesystem::remove(Path("part1/Carts1.lst"));
    OpenAudiowall(0, true);
    CloseAudiowall();
  }
  void Export(int n) {
    ListView list;
    list.ColumnHeaders = {{"Time"}, {"Length"}};
    for (int i = 0; i < kRows; ++i) list.ListItems.push_back({"", std::to_string(n), {{"1"}}});
    ExportListViewToCSV(&list, Path("out.csv"), ",", 0);
  }

  void ExpectWholeSettings() {
    const std::string bytes = folder().ReadFile("VELKLT.INI");
    const std::string key = "BreakDifferenceMS=";
    ASSERT_EQ(0U, bytes.find(kOtherLines + key)) << bytes;
    const size_t digits = std::strlen(kOtherLines) + key.size();
    const size_t end = bytes.find_first_not_of("0123456789", digits);
    ASSERT_GT(end, digits) << bytes;
    ASSERT_EQ(std::string("\r\n") + kLastLines, bytes.substr(end));
    LoadGeneralSettings();
    ASSERT_EQ(2, gGeneralSettings.NumberActiveSplits);
    ASSERT_LE(1, gGeneralSettings.BreakDifferenceMS);
  }
  // Whether the kill came in the middle of the filling.
  bool ExpectListFileThatCanBeFilled() {
    const bool isShort = !folder().Exists("part1/Carts1.lst") ||
                         folder().ReadFile("part1/Carts1.lst").size() < kCarts * kCartRecordLength;
    EXPECT_EQ(0, OpenAudiowall(0, true));
    const std::string bytes = folder().ReadFile("part1/Carts1.lst");
    EXPECT_EQ(kCarts * kCartRecordLength, bytes.size());
    const std::string blank(reinterpret_cast<const char*>(&gBlankCartRecord), kCartRecordLength);
    int cutOff = 0;
    for (int32_t i = 0; i < kCarts; ++i) {
      std::string_view record = std::string_view(bytes).substr(i * kCartRecordLength);
      record = record.substr(0, kCartRecordLength);
      if (record == blank) continue;
      // The system may cut a record off at the end of a page. The filling then goes on behind it,
      // by its rule; what is missing reads as zeros, so as a cart without audio.
      ++cutOff;
      const size_t end = record.find_last_not_of('\0') + 1;
      EXPECT_EQ(blank.substr(0, end), record.substr(0, end));
    }
    EXPECT_LE(cutOff, 1);
    CloseAudiowall();
    return isShort;
  }
  // The file is missing, or the whole of one export.
  void ExpectWholeExport() {
    if (!folder().Exists("out.csv")) return;
    const auto lines = ReadCSV(folder().ReadFile("out.csv"), 1);
    ASSERT_TRUE(lines.has_value());
    ASSERT_EQ(kRows + 1U, lines->size());
    for (size_t i = 1; i < lines->size(); ++i) ASSERT_EQ((*lines)[1], (*lines)[i]);
  }
};

TEST_F(KillTest, AtAnyMomentEveryFileIsWholeAndTheNextStartWorks) {
  std::mt19937 random(20261121);
  const std::function<void(int)> works[] = {[this](int n) { WriteSettings(n); },
                                            [this](int /*n*/) { FillListFile(); },
                                            [this](int n) { Export(n); }};
  std::vector<std::uniform_int_distribution<int>> moments;
  for (const auto& work : works) moments.emplace_back(50, LatestMoment([&] { work(1); }));
  int changedSettings = 0;
  int shortListFiles = 0;
  for (int round = 0; round < kRounds; ++round) {
    SCOPED_TRACE(round);
    const size_t kind = static_cast<size_t>(round) % moments.size();
    RunAndKill(moments[kind](random), works[kind]);
    if (kind == 1 && ExpectListFileThatCanBeFilled()) ++shortListFiles;
    if (kind == 2) ExpectWholeExport();
    ExpectWholeSettings();
    if (gGeneralSettings.BreakDifferenceMS > 1) ++changedSettings;
    EXPECT_EQ(0, OpenAudiowall(0, true));
    CloseAudiowall();
    if (HasFailure()) return;
  }
  // The kills did come in the middle of things.
  EXPECT_GT(shortListFiles, 0);
  EXPECT_TRUE(folder().Exists("out.csv"));
  EXPECT_GT(changedSettings, 0);
}

}  // namespace
}  // namespace logchecker
