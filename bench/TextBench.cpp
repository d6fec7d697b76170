// Rows for the routines that run once a line: taking it apart, and showing a length.
#include <benchmark/benchmark.h>

#include <string>

#include "common/TimeText.h"
#include "splitlogs/AdvertLog_FN.h"

namespace logchecker {
namespace {

void ReadFields(benchmark::State& state, const std::string& line) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(GetLineTXChainCode(line));
    benchmark::DoNotOptimize(GetLineTime(line));
    benchmark::DoNotOptimize(GetLineDescription(line));
    benchmark::DoNotOptimize(GetLineCart(line));
    benchmark::DoNotOptimize(GetLineReference(line));
  }
}

void LineReaderCurrentForm(benchmark::State& state) {
  ReadFields(state, "06:00:30|NTH  00012345 MIDTOWN CARPETS SUMMER SALE         REF-7781");
}
BENCHMARK(LineReaderCurrentForm);

void LineReaderOldForm(benchmark::State& state) {
  ReadFields(state, "06:00|NTH  2345 MIDTOWN CARPETS SUMMER SALE        REF-7781");
}
BENCHMARK(LineReaderOldForm);

void FormatTimeDisplayLength(benchmark::State& state) {
  const auto mask = static_cast<int32_t>(state.range(0));
  double seconds = 0;
  for (auto _ : state) {
    seconds = seconds < 600 ? seconds + 7.31 : 0;
    benchmark::DoNotOptimize(FormatTimeDisplay(seconds, mask));
  }
}
BENCHMARK(FormatTimeDisplayLength)->Arg(2)->Arg(201)->Arg(202);

}  // namespace
}  // namespace logchecker
