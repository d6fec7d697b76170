#include "cartstore/AudioSettings.h"

#include "cartstore/AudiowallParts.h"
#include "cartstore/BackupCartLists.h"
#include "cartstore/BlankCart.h"
#include "cartstore/FamilySettings.h"
#include "common/GeneralSettings.h"
#include "common/Numbers.h"
#include "common/UnreadableSettings.h"
#include "platform/Platform.h"

namespace logchecker {

AudioSettings gAudioSettings;

namespace {

void ReadLocations(const std::string& iniFile) {
  for (int16_t part = 1; part <= kAudiowallParts; ++part) {
    PartEntry(part).Path = Os().profiles.GetString("FileLocations", "Carts" + std::to_string(part),
                                                   "", kTextBufferLength, iniFile);
  }
}

// `Version` is compared in single precision: as a double, 2.6 would be greater than the 2.6 read.
void UpgradeStore(const std::string& storeFile) {
  constexpr float kPresentVersion = 2.6F;
  const auto version = static_cast<float>(
      Val(Os().profiles.GetString("Audiowall", "Version", "0.0", kTextBufferLength, storeFile)));
  if (!(kPresentVersion > version)) return;
  BackupCartLists(false);
  // Marked even when the backup failed, so that no start tries again: this is meant.
  Os().profiles.WriteString("Audiowall", "Version", "2.6", storeFile);
}

}  // namespace

std::string AudiowallSettingsFile() { return PartEntry(1).Path + "\\Audwall.ini"; }

void LoadAudioSettings(const std::string& iniFile, const std::string& /*registryRoot*/) {
  ProfileFiles& profiles = Os().profiles;
  InitialiseBlankCart();
  gFamilySettings = FamilySettings();
  ReadPlayerSettings(iniFile);
  ReadLocations(iniFile);
  gAudioSettings.UseIndividualCartListFiles =
      profiles.GetInt("Audio", "UseIndividualCartListFiles", 0, iniFile) != 0;
  gAudioSettings.EmptyCartBackColor = profiles.GetInt(
      "Audio", "EmptyCartBackColor", static_cast<int32_t>(kButtonFaceColour), iniFile);
  gAudioSettings.EmptyCartForeColor = profiles.GetInt(
      "Audio", "EmptyCartForeColor", static_cast<int32_t>(kButtonTextColour), iniFile);
  ReadSoundSettings(iniFile);
  InitialiseBlankCart();
  const std::string storeFile = AudiowallSettingsFile();
  gNumberOfCarts = profiles.GetInt("Audiowall", "NoCarts", kDefaultNumberOfCarts, storeFile);
  const bool storeHasLocation = !PartEntry(1).Path.empty();
  ReadStoreSettings(storeFile, storeHasLocation);
  // Settings that can't be read say neither how many carts there are nor which version it is.
  const bool unreadable = !WhyUnreadable(storeFile).empty();
  if (unreadable) gNumberOfCarts = 0;
  if (storeHasLocation && !unreadable) UpgradeStore(storeFile);
  ReadDiscSettings(storeFile);
}

}  // namespace logchecker
