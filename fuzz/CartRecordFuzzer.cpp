// Any bytes as a cart record: both conversions carry what they must, and its texts keep their
// lengths.
#include <algorithm>
#include <cstring>

#include "cartbrowser/CartSearch.h"
#include "cartstore/CartRecord.h"
#include "fuzz/Fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  CartRecord record{};
  std::memcpy(&record, data, std::min(size, kCartRecordLength));
  CartInfo info{};
  CartInfoFromRecord(info, record);
  CartRecord written{};
  CartRecordFromInfo(written, info);
  CartInfo again{};
  CartInfoFromRecord(again, written);
  CartRecord twice{};
  CartRecordFromInfo(twice, again);
  Require(std::memcmp(&written, &twice, kCartRecordLength) == 0);
  Require(std::memcmp(&written.Length, &record.Length, 5 * sizeof(float)) == 0);
  Require(std::memcmp(&written.Aux202, &record.Aux202, 68) == 0);

  std::string text;
  Require(GetCartDescription(info, false, text).size() == 3 * kLineLength);
  Require(GetCartDescription(info, true, text).size() <= 3 * kLineLength + 2);

  FuzzedDataProvider rest(data, size);
  SearchRules rules;
  rules.LimitLines = rest.ConsumeBool();
  rules.TimeRules = rest.ConsumeBool();
  rules.Length = rest.ConsumeFloatingPoint<float>();
  rules.Tolerance = rest.ConsumeIntegral<int32_t>();
  rules.Text = rest.ConsumeRandomLengthString(kLineLength);
  CartSearch(rules).Matches(1, info);
  return 0;
}
