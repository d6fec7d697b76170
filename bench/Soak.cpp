// Rounds of a day's load, check and export in one process, with its memory and its file handles as
// they go:
//   soak_bench [ROUNDS]
// Fails when either grows between the first tenth of the rounds and the last.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "cartstore/Velmar_Cart_Routines.h"
#include "checking/ExportListViewToCSV.h"
#include "headless/DayCheck.h"
#include "platform/Platform.h"
#include "sample/SampleStation.h"
#include "shell/LoadGeneralSettings.h"

namespace logchecker {
namespace {

constexpr int kRounds = 10000;
constexpr int32_t kDay = 46402;
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

long FileHandles() {
  long count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    ++count;
  }
  return count;
}

bool OneRound(const std::string& file) {
  const DayReport report = CheckDay(kDay);
  return report.trouble.empty() && !report.mismatches.empty() &&
         ExportListViewToCSV(&report.results, file, ",", 0) != 0;
}

int Soak(int rounds) {
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "logchecker-soak";
  std::filesystem::remove_all(folder);
  SampleStation station;
  station.firstDay = kDay;
  station.sizes = {10, 60, 5};
  WriteSampleStation(folder.string(), station);
  Os().system.SetWindowsFolder(folder.string());
  LoadGeneralSettings();
  LoadAudioSettings("VELMAR.INI", "");
  if (OpenAudiowall(0, true) != 0) return 2;
  long memory = 0;
  long handles = 0;
  for (int round = 1; round <= rounds; ++round) {
    if (!OneRound((folder / "out.csv").string())) return 2;
    if (round % (rounds / 10) != 0) continue;
    std::printf("%6d rounds: %6ld KiB, %ld file handles\n", round, ResidentMemory(), FileHandles());
    if (round > rounds / 10) continue;
    memory = ResidentMemory();
    handles = FileHandles();
  }
  const bool flat = ResidentMemory() <= memory + kSlack && FileHandles() == handles;
  CloseAudiowall();
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
