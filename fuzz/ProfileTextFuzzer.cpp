// Any bytes as a settings file: reading changes nothing, and a key that is written is found again
// while every other line keeps its bytes.
#include <algorithm>

#include "fuzz/Fuzzer.h"
#include "platform/posix/PosixProfileFiles.h"
#include "platform/posix/ProfileEncoding.h"
#include "platform/posix/ProfileText.h"

namespace logchecker {
namespace {

constexpr const char* kSections[] = {"General", "Split 1", "FileLocations", "Audiowall"};
constexpr const char* kKeys[] = {"NumberActiveSplits", "SplitName", "Carts1", "NoCarts", "X"};
constexpr const char* kValues[] = {"", "2", "C:\\Logs\\Nord", "a=b", "[x]", ";no comment"};

// Deleting takes lines away and adds none.
void Delete(ProfileText text, const char* section, const char* key) {
  const size_t before = text.Bytes().size();
  text.DeleteKey(section, key);
  text.DeleteSection(section);
  Require(text.Bytes().size() <= before);
}

}  // namespace
}  // namespace logchecker

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  FuzzedDataProvider input(data, size);
  const char* section = input.PickValueInArray(kSections);
  const char* key = input.PickValueInArray(kKeys);
  const char* value = input.PickValueInArray(kValues);
  const std::string bytes = input.ConsumeRemainingBytesAsString();

  const ProfileText unchanged(bytes);
  ProfileText text = unchanged;
  Require(text.Bytes() == bytes);
  if (const std::string* found = text.Find(section, key)) {
    ProfileNumber(*found);
    Require(EncodingOfProfile(bytes) != ProfileEncoding::kStation ||
            bytes.find(*found) != std::string::npos);
  }
  Delete(text, section, key);

  text.Set(section, key, value);
  const ProfileText again(text.Bytes());
  for (const ProfileText& written : {text, again}) {
    const std::string* found = written.Find(section, key);
    Require(found != nullptr && *found == value);
  }
  for (const char* other : kKeys) {
    const std::string* before = unchanged.Find("Other", other);
    const std::string* after = again.Find("Other", other);
    Require((before == nullptr) == (after == nullptr));
    Require(before == nullptr || *before == *after);
  }
  return 0;
}
