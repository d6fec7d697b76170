// Names, values and file of a profile call, all hostile: the calls come back, and what can't be
// written leaves the file as it was.
#include "fuzz/FuzzStation.h"
#include "fuzz/Fuzzer.h"
#include "platform/Platform.h"
#include "platform/posix/ProfileEncoding.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  constexpr size_t kLongestName = 64;
  constexpr int32_t kMostBuffer = 300;
  constexpr const char* kFile = "HOSTILE.INI";
  const TempFolder& folder = FuzzStationFolder();

  FuzzedDataProvider input(data, size);
  const int32_t buffer = input.ConsumeIntegralInRange<int32_t>(-1, kMostBuffer);
  const int verb = input.ConsumeIntegralInRange(0, 2);
  const std::string section = input.ConsumeRandomLengthString(kLongestName);
  const std::string key = input.ConsumeRandomLengthString(kLongestName);
  const std::string value = input.ConsumeRandomLengthString(kLongestName);
  folder.WriteFile(kFile, input.ConsumeRemainingBytesAsString());

  ProfileFiles& profiles = Os().profiles;
  const std::string read = profiles.GetString(section, key, value, buffer, kFile);
  Require(read.size() < static_cast<size_t>(buffer > 0 ? buffer : 1));
  profiles.GetInt(section, key, buffer, kFile);
  const std::string before = folder.ReadFile(kFile);
  int32_t error = kNoError;
  if (verb == 0) error = profiles.WriteString(section, key, value, kFile);
  if (verb == 1) error = profiles.DeleteKey(section, key, kFile);
  if (verb == 2) error = profiles.DeleteSection(section, kFile);
  const std::string after = folder.ReadFile(kFile);
  if (error != kNoError) Require(after == before);
  const bool asItIs = EncodingOfProfile(before) == ProfileEncoding::kStation;
  if (verb == 0 && error == kNoError && asItIs) Require(after.find(value) != std::string::npos);
  if (verb != 0) Require(after.size() <= before.size());
  return 0;
}
