// Rounds of a watch in one process, each tenth with a change, with its memory as it goes:
//   watch_soak [ROUNDS]
// Fails when it grows between the first tenth of the rounds and the last.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "headless/CommandLine.h"
#include "headless/Watch.h"
#include "platform/Platform.h"
#include "sample/SampleStation.h"

namespace logchecker {
namespace {

constexpr int kRounds = 10000;
constexpr int kRoundsToAChange = 10;
constexpr double kInterval = 10;  // seconds, which nobody waits for
// What the system's allocator may take and give back on the way, in KiB.
constexpr long kSlack = 1024;

// Of the process, in KiB.
long ResidentMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.rfind("VmRSS:", 0) == 0) return std::strtol(line.c_str() + 6, nullptr, 10);
  }
  return 0;
}

int Soak(int rounds) {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / "logchecker-watch-soak";
  std::filesystem::remove_all(folder);
  SampleStation sample;
  sample.firstDay = static_cast<int32_t>(Os().clock.Now()) + 1;
  sample.sizes = {10, 60, 5};
  WriteSampleStation(folder.string(), sample);
  double seconds = 0;
  WatchOutlets outlets;
  outlets.seconds = [&] { return seconds; };
  outlets.tell = [](const WatchEvent&) {};
  Watch watch(*ParseArguments({"watch", "--settings", folder.string(), "--format", "json",
                               "--output", (folder / "out.json").string()})
                   .options,
              outlets);
  long memory = 0;
  for (int round = 1; round <= rounds; ++round) {
    seconds += kInterval;
    watch.Round();
    if (round % kRoundsToAChange == 0) {
      std::ofstream(folder / "VELKLT.INI", std::ios::app) << (round % 100 == 0 ? "" : "; noted\n");
    }
    if (round % (rounds / 10) != 0) continue;
    std::printf("%6d rounds, %5d checks: %6ld KiB\n", round, watch.Checks(), ResidentMemory());
    if (round == rounds / 10) memory = ResidentMemory();
  }
  const bool flat = ResidentMemory() <= memory + kSlack;
  std::filesystem::remove_all(folder);
  std::puts(flat ? "flat" : "GROWN");
  return flat ? 0 : 1;
}

}  // namespace
}  // namespace logchecker

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : logchecker::kRounds;
  return logchecker::Soak(rounds < 10 ? 10 : rounds);
}
