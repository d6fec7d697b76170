// The short read of a cart against the whole one, on random records, files and failures.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstring>

#include "cartstore/UnreadableCarts.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "common/ErrorState.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int32_t kCarts = 20;

std::string RandomRecords(int32_t count) {
  std::string bytes;
  for (int32_t i = 0; i < count; ++i) {
    CartRecord record = RecordOfLength(*rc::gen::element(-1.0F, 0.0F, 12.5F, 30.0F));
    for (float* seconds : {&record.Length, &record.TotalLength, &record.EndPoint}) {
      const auto value = *rc::gen::arbitrary<float>();
      if (*rc::gen::inRange(0, 3) == 0) std::memcpy(seconds, &value, sizeof value);
    }
    record.PlayLength = *rc::gen::element(-1.0F, 0.0F, 12.5F);
    bytes.append(reinterpret_cast<const char*>(&record), sizeof record);
  }
  return bytes.substr(0, bytes.size() - *rc::gen::inRange<size_t>(0, 2 * kCartRecordLength));
}

// What a read of one cart leaves behind.
struct Traces {
  int16_t result = 0;
  CartLengths lengths;
  int32_t error = 0;
  int32_t state = 0;
  std::vector<std::string> calls;
  std::vector<std::string> told;
};

class LoadCartLengthsProperty : public StationTest {
 protected:
  LoadCartLengthsProperty() { OpenStore(kCarts); }

  template <typename Read>
  Traces TracesOf(int32_t failing, const Read& read) {
    Traces traces;
    OpenAudiowall(0, true);
    gErrorState = {7, "an older error"};
    const auto before = ListenForUnreadableCarts([&](const UnreadableCart& cart) {
      traces.told.push_back(std::to_string(cart.cart) + cart.file + std::to_string(cart.error));
    });
    os.script.Clear();
    if (failing > 0) os.script.FailCall(failing, kDeviceIoError);
    traces.result = read(traces.lengths);
    traces.calls = os.script.Calls();
    os.script.Clear();
    ListenForUnreadableCarts(before);
    traces.error = gErrorState.Number;
    traces.state = PartEntry(1).State;
    return traces;
  }
};

RC_GTEST_FIXTURE_PROP(LoadCartLengthsProperty, EqualTheWholeReadInAllButWhatIsCopied, ()) {
  CloseAudiowall();
  folder().WriteFile("part1/Carts1.lst", RandomRecords(kCarts));
  gAudioSettings.UseIndividualCartListFiles = *rc::gen::arbitrary<bool>();
  folder().WriteFile("part1/VEL00002.LST",
                     *rc::gen::element(std::string(), std::string("x"), RandomRecords(3)));
  const auto cart = *rc::gen::inRange(-1, kCarts + 2);
  const auto failing = *rc::gen::inRange(0, 6);
  // The first read of either may be the one that fills the file.
  OpenAudiowall(0, true);
  const Traces whole = TracesOf(failing, [cart](CartLengths& lengths) {
    CartInfo info;
    const int16_t result = LoadCartInfo(info, cart);
    lengths = {info.Length, info.PlayLength};
    return result;
  });
  const Traces part =
      TracesOf(failing, [cart](CartLengths& lengths) { return LoadCartLengths(lengths, cart); });
  RC_ASSERT(part.result == whole.result);
  RC_ASSERT(std::memcmp(&part.lengths, &whole.lengths, sizeof part.lengths) == 0);
  RC_ASSERT(part.error == whole.error);
  RC_ASSERT(part.state == whole.state);
  RC_ASSERT(part.calls == whole.calls);
  RC_ASSERT(part.told == whole.told);
}

}  // namespace
}  // namespace logchecker
