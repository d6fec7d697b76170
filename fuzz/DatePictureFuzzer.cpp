// Any day and any picture.
#include "common/DatePicture.h"
#include "fuzz/Fuzzer.h"
#include "splitlogs/LogNameText.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  // No letter of a picture stands for a longer text than a long date, written out.
  constexpr size_t kLongestPiece = 64;
  FuzzedDataProvider input(data, size);
  const auto whole = input.ConsumeIntegral<int32_t>();
  const double dateTime =
      input.ConsumeBool() ? input.ConsumeFloatingPoint<double>() : static_cast<double>(whole);
  const std::string picture = input.ConsumeRemainingBytesAsString();
  const auto text = FormatDate(dateTime, picture);
  if (text) Require(text->size() <= kLongestPiece * picture.size());
  Require(!LogNameText(text.value_or(picture), "KLT", whole % 2 == 0, "LOG").empty());
  return 0;
}
