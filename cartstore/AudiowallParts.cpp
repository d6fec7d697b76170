#include "cartstore/AudiowallParts.h"

namespace logchecker {

std::array<AudiowallPart, kAudiowallParts> gAudiowallParts;
int32_t gNumberOfCarts = kDefaultNumberOfCarts;

int16_t GetCartPart(int32_t cartNumber) {
  constexpr int32_t kLastOfPartTen = 10000;
  if (cartNumber < 0 || cartNumber > kLastOfPartTen) return kAudiowallParts;
  if (cartNumber == 0) return 0;
  return static_cast<int16_t>((cartNumber - 1) / kCartsOfAPart + 1);
}

int16_t PartsInUse() { return GetCartPart(gNumberOfCarts); }

AudiowallPart& PartEntry(int16_t part) { return gAudiowallParts.at(static_cast<size_t>(part - 1)); }

}  // namespace logchecker
