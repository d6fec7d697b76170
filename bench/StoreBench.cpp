// Rows for the store: the search's walk over all of it, with and without notes, and a refresh of
// the browser's rows. They run on stores that they write into a folder of their own.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

#include "bench/BenchStore.h"
#include "cartbrowser/BrowserRows.h"
#include "cartbrowser/CartWalk.h"

namespace logchecker {
namespace {

class CountingObserver : public CartWalkObserver {
 public:
  void ShowProgress(int32_t /*cartNumber*/) override {}
  void AddResult(int32_t /*cartNumber*/, const CartInfo& /*info*/) override { ++found; }
  void Yield() override { ++yields; }

  int32_t found = 0;
  int32_t yields = 0;
};

// Nothing matches, so that everything is read.
void WalkStore(benchmark::State& state, bool notes) {
  const auto carts = static_cast<int32_t>(state.range(0));
  OpenBenchStore(carts, notes);
  SearchRules rules;
  rules.Text = "nothing like it";
  rules.Notes = notes;
  for (auto _ : state) {
    CountingObserver observer;
    CartWalk(CartSearch(rules), 1, SearchDirection::kForwards).Run(observer, [] { return false; });
    if (observer.yields != carts || observer.found != 0) std::abort();
  }
}
void WalkWithoutNotes(benchmark::State& state) { WalkStore(state, false); }
BENCHMARK(WalkWithoutNotes)->Arg(9999)->Unit(benchmark::kMillisecond);
void WalkWithNotes(benchmark::State& state) { WalkStore(state, true); }
BENCHMARK(WalkWithNotes)->Arg(12000)->Unit(benchmark::kMillisecond);

void ReadFiftyBrowserRows(benchmark::State& state) {
  OpenBenchStore(9999, false);
  const FitText fit = [](const std::string& text, int32_t /*maxWidth*/) { return text; };
  for (auto _ : state) {
    for (int32_t cart = 5001; cart <= 5050; ++cart) {
      benchmark::DoNotOptimize(ReadBrowserRow(cart, true, 6000, fit));
    }
  }
}
BENCHMARK(ReadFiftyBrowserRows)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace logchecker
