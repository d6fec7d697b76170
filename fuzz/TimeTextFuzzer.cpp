// Times as text and back: any value and any text, by any mask.
#include <cmath>

#include "common/TimeText.h"
#include "fuzz/Fuzzer.h"

namespace logchecker {
namespace {

// A length that the mask can show comes back, but for what the mask leaves out.
void RequireRoundTrip(double seconds, int32_t units, int32_t tens) {
  const bool hours = units == 1 || units == 2 || units == 4;
  if (!(seconds >= 0) || seconds >= (hours ? 86400.0 : 3599.0)) return;
  const int32_t mask = tens * 10 + units;
  const double back = ParseTimeDisplay(FormatTimeDisplay(seconds, mask), mask);
  const double resolution = units == 4 ? 60 : 1;
  Require(std::fabs(back - seconds) <= resolution);
}

}  // namespace
}  // namespace logchecker

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  constexpr size_t kLongestText = 24;
  FuzzedDataProvider input(data, size);
  const auto mask = input.ConsumeIntegral<int32_t>();
  const double seconds = input.ConsumeBool() ? input.ConsumeFloatingPoint<double>()
                                             : input.ConsumeFloatingPointInRange<double>(-1, 90000);
  RequireRoundTrip(seconds, input.ConsumeIntegralInRange(0, 4), input.ConsumeIntegralInRange(0, 9));
  Require(FormatTimeDisplay(seconds, mask).size() <= kLongestText);
  Require(FormatLengthDisplay(static_cast<float>(seconds), mask).size() <= kLongestText);
  const double parsed = ParseTimeDisplay(input.ConsumeRemainingBytesAsString(), mask);
  Require(std::isfinite(parsed));
  return 0;
}
