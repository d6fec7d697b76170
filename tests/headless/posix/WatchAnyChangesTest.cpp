// Whatever happens to a station, a watch ends with the report that a fresh check of it makes.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include "headless/CommandLine.h"
#include "headless/Station.h"
#include "headless/Watch.h"
#include "sample/SampleStation.h"
#include "tests/headless/posix/ChangingStation.h"
#include "tests/support/RunProgram.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int32_t kToday = 46347;
constexpr char kTomorrow[] = "2026-11-22";
constexpr uintmax_t kBytesOfALog = 2500;
constexpr int kSequences = 60;
constexpr uint32_t kMostChanges = 8;
constexpr double kInterval = 10;
constexpr int kRoundsUntilQuiet = 12;

std::string WithoutTime(const std::string& report) {
  return std::regex_replace(report, std::regex("\"checkedAt\": \"[^\"]*\""), "");
}

class WatchAnyChanges : public StationTest {
 protected:
  WatchAnyChanges() {
    os.now = kToday + 0.5;
    SampleStation sample;
    sample.firstDay = kToday + 1;
    WriteSampleStation(Path("station"), sample);
    // A few breaks of each show as much as all do.
    for (const auto& entry : std::filesystem::recursive_directory_iterator(Path("station/logs"))) {
      if (entry.is_regular_file()) std::filesystem::resize_file(entry.path(), kBytesOfALog);
    }
    WatchOutlets outlets;
    outlets.seconds = [this] { return seconds_; };
    outlets.tell = [](const WatchEvent&) {};
    watch_ = std::make_unique<Watch>(OptionsOfWatch(), std::move(outlets));
  }
  ~WatchAnyChanges() override { CloseStation(); }

  Options OptionsOfWatch() const {
    return *ParseArguments({"watch", "--settings", Path("station"), "--format", "json", "--output",
                            Path("out.json")})
                .options;
  }
  void Round() {
    seconds_ += kInterval;
    watch_->Round();
    os.script.Clear();
  }
  // Something changes in the middle of the next check, at its `n`-th call.
  void ChangeAtCall(uint32_t n, ChangingStation& station, std::string* told) {
    auto left = std::make_shared<uint32_t>(n);
    os.script.onCall = [left, &station, told](const char*) {
      if ((*left)-- == 0) *told += "in a check, " + station.Change() + "\n";
    };
  }
  std::string FreshCheck() const {
    RunProgram("logcheck",
               "--settings '" + Path("station") + "' --date " + kTomorrow +
                   " --format json --output '" + Path("fresh.json") + "'",
               folder());
    return WithoutTime(folder().ReadFile("fresh.json"));
  }

  double seconds_ = 0;
  std::unique_ptr<Watch> watch_;
};

TEST_F(WatchAnyChanges, EndInWhatAFreshCheckSays) {
  for (int sequence = 0; sequence < kSequences; ++sequence) {
    std::mt19937 random(static_cast<uint32_t>(sequence));
    ChangingStation station(Path("station"), static_cast<uint32_t>(sequence));
    std::string told;
    for (uint32_t change = 1 + random() % kMostChanges; change > 0; --change) {
      if (random() % 3 == 0) {
        ChangeAtCall(random() % 700, station, &told);
      } else {
        told += station.Change() + "\n";
      }
      for (uint32_t rounds = random() % 4; rounds > 0; --rounds) {
        Round();
        told += "a round\n";
      }
    }
    os.script.onCall = nullptr;
    for (int round = 0; round < kRoundsUntilQuiet; ++round) Round();
    const int checks = watch_->Checks();
    ASSERT_EQ(FreshCheck(), WithoutTime(folder().ReadFile("out.json"))) << sequence << "\n" << told;
    for (int round = 0; round < 3; ++round) Round();
    ASSERT_EQ(checks, watch_->Checks()) << "it checks for ever\n" << told;
    station.Restore();
  }
}

}  // namespace
}  // namespace logchecker
