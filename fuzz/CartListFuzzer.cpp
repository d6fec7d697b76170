// Any bytes as a list file, and any settings of the store: it opens, is filled up, and every cart
// can be read.
#include "cartstore/AudioSettings.h"
#include "cartstore/AudiowallParts.h"
#include "cartstore/LoadCartInfo.h"
#include "cartstore/OpenAudiowall.h"
#include "fuzz/FuzzStation.h"
#include "fuzz/Fuzzer.h"
#include "platform/Platform.h"

namespace logchecker {
namespace {

const TempFolder& Store() {
  static const TempFolder& folder = [&]() -> const TempFolder& {
    const TempFolder& windows = FuzzStationFolder();
    Os().directories.MakeDirectory(windows.Path("part1"));
    windows.WriteFile("VELMAR.INI", "[FileLocations]\r\nCarts1=" + windows.Path("part1") + "\r\n");
    return windows;
  }();
  return folder;
}

}  // namespace
}  // namespace logchecker

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  constexpr int kMostCarts = 12;
  const TempFolder& folder = Store();
  FuzzedDataProvider input(data, size);
  const int carts = input.ConsumeIntegralInRange(1, kMostCarts);
  const std::string more = input.ConsumeRandomLengthString(128);
  const std::string list = input.ConsumeRemainingBytesAsString();
  folder.WriteFile("part1/Audwall.ini", "[Audiowall]\r\nNoCarts=" + std::to_string(carts) +
                                            "\r\nVersion=2.6\r\n" + more);
  folder.WriteFile("part1/Carts1.lst", list);

  LoadAudioSettings("VELMAR.INI", "");
  Require(gNumberOfCarts == carts);
  Require(OpenAudiowall(0, true) == 0);
  const size_t whole = static_cast<size_t>(carts) * kCartRecordLength;
  // A file that ends inside its last record may stay so.
  Require(folder.ReadFile("part1/Carts1.lst").size() + kCartRecordLength > whole);
  for (int32_t number = -1; number <= carts + 1; ++number) {
    CartInfo info{};
    Require((LoadCartInfo(info, number) == 0) == (number >= 1 && number <= carts));
  }
  CloseAudiowall();
  RealPlatform().files.CloseAll();
  return 0;
}
