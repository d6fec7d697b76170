// Rows for the store: the search's walk over all of it, with and without notes, and a refresh of
// the browser's rows. They run on stores that they write into a folder of their own.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>
#include <thread>

#include "cartstore/BrowserRows.h"
#include "cartstore/CartWalk.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "platform/Platform.h"

namespace logchecker {
namespace {

constexpr size_t kNotesLength = 12000;

CartRecord RecordOf(int32_t cart) {
  CartInfo info = gBlankCartInfo;
  const std::string text = "CART " + std::to_string(cart) + " OF THE STORE";
  std::copy(text.begin(), text.end(), info.Line1.begin());
  std::copy(text.begin(), text.end(), info.Line2.begin());
  info.Length = info.TotalLength = info.EndPoint = info.PlayLength = 30;
  CartRecord record;
  CartRecordFromInfo(record, info);
  return record;
}

// Notes of every other cart are plain ones, which are looked for last.
void WriteNotes(int32_t cart) {
  const char* const extension = cart % 2 == 0 ? ".RTF" : ".TXT";
  std::string path = GetCartFileStem(cart) + extension;
  path.replace(path.find('\\'), 1, "/");
  std::ofstream file(path, std::ios::binary);
  file << "{\\rtf1 notes of cart " << cart << std::string(kNotesLength, '.') << "}";
}

// Where the stores lie, for as long as the program runs.
class StoreFolder {
 public:
  StoreFolder() = default;
  StoreFolder(const StoreFolder&) = delete;
  StoreFolder& operator=(const StoreFolder&) = delete;
  ~StoreFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_ = std::filesystem::temp_directory_path() / "logchecker-bench-store";
};

// Opens a store in which every cart is in use.
void OpenStore(int32_t carts, bool notes) {
  static int32_t open = 0;
  if (open == carts) return;
  CloseAudiowall();
  for (AudiowallPart& part : gAudiowallParts) part = AudiowallPart();
  gNumberOfCarts = carts;
  static const StoreFolder stores;
  const std::filesystem::path folder = stores.path() / std::to_string(carts);
  for (int16_t part = 1; part <= PartsInUse(); ++part) {
    const std::filesystem::path place = folder / ("part" + std::to_string(part));
    std::filesystem::create_directories(place);
    PartEntry(part).Path = place.string();
  }
  if (OpenAudiowall(0, true) != 0) std::abort();
  for (int32_t cart = 1; cart <= carts; ++cart) {
    const int16_t part = GetCartPart(cart);
    const CartRecord record = RecordOf(cart);
    Os().files.PutRecord(static_cast<int16_t>(PartEntry(part).FileNumber),
                         cart - (part - 1) * kCartsOfAPart, &record);
    if (notes) WriteNotes(cart);
  }
  // Folders that changed within two seconds are read anew each time.
  if (notes) std::this_thread::sleep_for(std::chrono::seconds(3));
  open = carts;
}

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
  OpenStore(carts, notes);
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
  OpenStore(9999, false);
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
