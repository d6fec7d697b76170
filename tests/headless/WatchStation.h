// A watch, round by round, on a station of its own and by a clock that the test turns on.
#pragma once

#include <memory>

#include "headless/CommandLine.h"
#include "headless/Station.h"
#include "headless/Watch.h"
#include "headless/WatchLines.h"
#include "sample/SampleStation.h"
#include "tests/support/StationTest.h"

namespace logchecker {

inline constexpr int32_t kToday = 46347;  // 2026-11-21
inline constexpr double kInterval = 10;
inline constexpr char kLog[] = "station/logs/Larkfield/261122.LOG";

class WatchTest : public StationTest {
 protected:
  WatchTest() {
    os.now = kToday + 0.5;
    SampleStation sample;
    sample.firstDay = kToday + 1;
    sample.sizes = {2, 10, 2};
    WriteSampleStation(Path("station"), sample);
    Begin({});
  }
  ~WatchTest() override { CloseStation(); }

  void Begin(const std::vector<std::string>& more) {
    std::vector<std::string> arguments = {"watch", "--settings", Path("station"), "--output",
                                          Path("out")};
    arguments.insert(arguments.end(), more.begin(), more.end());
    WatchOutlets outlets;
    outlets.seconds = [this] { return seconds_; };
    outlets.tell = [this](const WatchEvent& event) {
      told_ += std::string(NameOf(event.kind)) + " ";
      last_ = event.text;
    };
    outlets.run = [this](const CheckReport&, const std::string& bytes) {
      given_.push_back(bytes);
      return commandFails_ ? std::string("the command ended with 3") : std::string();
    };
    watch_ = std::make_unique<Watch>(*ParseArguments(arguments).options, std::move(outlets));
  }
  // What a round tells.
  std::string Round() {
    told_.clear();
    seconds_ += kInterval;
    watch_->Round();
    os.script.Clear();
    return told_;
  }
  void Settle() {
    for (int round = 0; round < 4; ++round) Round();
  }
  std::string Output() const { return folder().ReadFile("out"); }

  double seconds_ = 0;
  bool commandFails_ = false;
  std::string told_;
  std::string last_;
  std::vector<std::string> given_;
  std::unique_ptr<Watch> watch_;
};

}  // namespace logchecker
