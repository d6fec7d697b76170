// The family-wide audio settings: where the store lies, how many carts it has, and what else is
// read.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

inline constexpr uint32_t kButtonFaceColour = 0x8000000FU;  // system colours have the top bit set
inline constexpr uint32_t kButtonTextColour = 0x80000012U;

struct AudioSettings {
  bool UseIndividualCartListFiles = false;  // a cart's own list file is tried first
  int32_t EmptyCartBackColor = static_cast<int32_t>(kButtonFaceColour);
  int32_t EmptyCartForeColor = static_cast<int32_t>(kButtonTextColour);
};

extern AudioSettings gAudioSettings;

// Reads everything from the profile file `iniFile` and from Audwall.ini in the directory of part 1,
// fills gAudiowallParts, gNumberOfCarts and the blank cart, and backs the list files of a store of
// an older version up, once. `registryRoot` is the other source that the family's programs know;
// with a name in `iniFile` it is never looked at.
void LoadAudioSettings(const std::string& iniFile, const std::string& registryRoot);

// Path of the file that describes the store and stands with it.
std::string AudiowallSettingsFile();

}  // namespace logchecker
