// Settings of other programs of the family. They are read with the audio settings and kept, and
// nothing in this program acts on them.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace logchecker {

// Values by "section/key", as they were read.
struct FamilySettings {
  int32_t TotalNumberCartPlayers = -1;
  std::map<std::string, int32_t> Numbers;
  std::map<std::string, std::string> Texts;
};

extern FamilySettings gFamilySettings;

// Players, carts and editors. The number of players is that of the settings, or else of /PLAYERS=
// on the command line, or else of the wave devices; it is cut to 1, since there is room for one
// alone.
void ReadPlayerSettings(const std::string& iniFile);
// Section Audio.
void ReadSoundSettings(const std::string& iniFile);
// Of the store's own file; the second group only when the store has a location.
void ReadStoreSettings(const std::string& storeFile, bool storeHasLocation);
// Disc ripping and the disc database, in the store's own file.
void ReadDiscSettings(const std::string& storeFile);

}  // namespace logchecker
