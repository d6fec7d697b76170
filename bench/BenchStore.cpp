#include "bench/BenchStore.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>
#include <thread>

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

}  // namespace

void OpenBenchStore(int32_t carts, bool notes) {
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

}  // namespace logchecker
