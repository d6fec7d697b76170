// Any bytes as a line of a log: each reader alone says what they say together.
#include <cmath>

#include "fuzz/Fuzzer.h"
#include "splitlogs/AdvertLog_FN.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  const std::string line(AsText(data, size));
  const std::string normalised = NormaliseLogLine(line);
  const LogLine fields(line);
  Require(fields.Time() == GetLineTime(line) && std::isfinite(fields.Time()));
  Require(fields.Reference() == GetLineReference(line));
  Require(fields.Description() == GetLineDescription(line));
  Require(fields.Cart() == GetLineCart(line));
  Require(fields.TXChainCode() == GetLineTXChainCode(line));
  // A line that has been brought to the current form is read as it stands.
  Require(GetLineReference(normalised) == GetLineReference(line));
  Require(GetLineDescription(normalised) == GetLineDescription(line));
  Require(GetLineCart(normalised) == GetLineCart(line));
  return 0;
}
