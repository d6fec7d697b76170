// Rows for a day: reading a cart, loading a split's log, comparing all splits. They run on a
// station that they write into a folder of their own.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "cartstore/Velmar_Cart_Routines.h"
#include "checking/BreakCheck.h"
#include "common/GeneralSettings.h"
#include "platform/Platform.h"
#include "sample/SampleStation.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/LoadLogs.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46000;
constexpr int32_t kSplits = 10;

// Opens a station of ten splits with this many breaks of eight adverts.
void OpenStation(int64_t breaks) {
  static int64_t open = 0;
  if (open == breaks) return;
  CloseAllFiles();
  gSplits.UnloadAll();
  for (SplitSettings& settings : gSplitSettings) settings = SplitSettings();
  for (AudiowallPart& part : gAudiowallParts) part = AudiowallPart();
  const std::string folder =
      (std::filesystem::temp_directory_path() / ("logchecker-bench-" + std::to_string(breaks)))
          .string();
  SampleStation station;
  station.firstDay = kDay;
  station.sizes = {kSplits, static_cast<int32_t>(breaks), 8};
  WriteSampleStation(folder, station);
  LoadGeneralSettings();
  LoadAudioSettings(kFamilySettingsFile, "");
  if (OpenAudiowall(0, true) != 0) std::abort();
  LoadLogs(kDay);
  open = breaks;
}

void LoadOneCart(benchmark::State& state) {
  OpenStation(60);
  CartInfo info;
  int32_t cart = 1000;
  for (auto _ : state) {
    cart = cart < 3800 ? cart + 1 : 1001;
    LoadCartInfo(info, cart);
    benchmark::DoNotOptimize(info);
  }
}
BENCHMARK(LoadOneCart);

void LoadOneLog(benchmark::State& state) {
  OpenStation(state.range(0));
  for (auto _ : state) gSplits(5).LoadLogFile();
  state.SetItemsProcessed(state.iterations() * state.range(0) * 8);
}
BENCHMARK(LoadOneLog)->Arg(60)->Arg(1440);

void CompareTenSplits(benchmark::State& state) {
  OpenStation(state.range(0));
  BreakCheck check;
  check.BuildColumns();
  for (auto _ : state) check.CheckBreaks();
  state.SetItemsProcessed(state.iterations() * state.range(0) * kSplits);
}
BENCHMARK(CompareTenSplits)->Arg(60)->Arg(1440);

}  // namespace
}  // namespace logchecker
