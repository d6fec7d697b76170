#include "cartstore/FamilySettings.h"

#include <span>

#include "cartstore/WaveDeviceSearch.h"
#include "common/DebugLog.h"
#include "common/GeneralSettings.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "platform/Platform.h"

namespace logchecker {

FamilySettings gFamilySettings;

namespace {

constexpr int32_t kSampleRate = 44100;
constexpr int16_t kMono = 1;
constexpr int32_t kMostPlayers = 1;

struct NumberKey {
  const char* section;
  const char* key;
  int32_t byDefault;
};

struct TextKey {
  const char* section;
  const char* key;
  const char* byDefault;
};

constexpr NumberKey kOrderKeys[] = {
    {"CartPlayers", "EditPlayer", 0},
    {"CartPlayers", "FirstPlayerInOrder", 1},
    {"CartPlayers", "LastPlayerInOrder", 255},
    {"CartPlayers", "RegisterAsToolbars", 0},
    {"Carts", "KeyboardClose", 0},
    {"Carts", "MouseClose", 1},
    {"Carts", "HighlightPlayedCarts", 0},
    {"Carts", "HighlightPLayedCartsInterval", 0},  // the capital L is the key's own spelling
};

constexpr NumberKey kDisplayKeys[] = {
    {"Audio", "AudioEditorPriority", 10},
    {"Audio", "AudioEditorRunAtIdleSpeed", 0},
    {"Audio", "MaintainLegacyCartList", 1},
    {"Audio", "LockPlayerWhenRecording", 0},
    {"Audio", "UseLargeSSBuffers", 0},
    {"Audio", "SSDebugMode", 0},
    {"Audio", "SelectedCartMode", 1},
    {"Audio", "SelectedCartColor", 0xC00000},
    {"Audio", "SelectedCartColorText", 0xFFFFFF},
    {"Audio", "CartPlayedRecentColor", 255},
    {"Audio", "ShowTimesBarInColor", 1},
    {"Audio", "TimesBarColor", 0xC00000},
    {"Audio", "TimesBarColorText", 0xFFFFFF},
    {"Audio", "CartNumberColor", 255},
    {"Audio", "DisplayCartHasAudioAsSquare", 0},
    {"Audio", "EmptyCartNumberColor", 0x9A9A9A},
    {"Audio", "CartFontBold", 0},
    {"Audio", "CartFontSize", 8},
    {"Audio", "DisplayCartTimeHours", 0},
    {"Audio", "CartShowCompressed", 0},
};

constexpr NumberKey kPlayingKeys[] = {
    {"Audio", "PlayerFadeSeconds", 2},          {"Audio", "PlayCartsInstantly", 1},
    {"Audio", "OnlyAllowEjectStoppedCarts", 0}, {"Audio", "UseLegacyFileCopyMode", 0},
    {"Audio", "UsePlayerDucking", 1},           {"Audio", "GeneralVolume", 100},
};

constexpr NumberKey kRecordingKeys[] = {
    {"Audio", "KHz", 44100},     {"Audio", "Channels", 2},
    {"Audio", "Format", 1},      {"Audio", "AllowDifferentFormat", 0},
    {"Audio", "RecordLocal", 0},
};

constexpr NumberKey kStoreKeys[] = {
    {"Audiowall", "AllowAudioFileLinking", 0},
    {"CartChunk", "UseCopyrightInCartChunk", 0},
};

constexpr NumberKey kRippingKeys[] = {
    {"CDRipping", "AskBeforeProcess", 0},
    {"CDRipping", "NormaliseAudioPercent", 63},
    {"CDRipping", "AutoTopAudio", 1},
    {"CDDB", "AllowCDDB", 0},
};

constexpr TextKey kDatabaseKeys[] = {
    {"CDDB", "ServerAddress", "gnudb.gnudb.org"},
    {"CDDB", "EmailAddress", ""},
};

int32_t ReadNumber(const NumberKey& row, const std::string& file) {
  const int32_t value = Os().profiles.GetInt(row.section, row.key, row.byDefault, file);
  gFamilySettings.Numbers[std::string(row.section) + "/" + row.key] = value;
  return value;
}

std::string ReadText(const TextKey& row, const std::string& file) {
  std::string value =
      Os().profiles.GetString(row.section, row.key, row.byDefault, kTextBufferLength, file);
  gFamilySettings.Texts[std::string(row.section) + "/" + row.key] = value;
  return value;
}

void ReadNumbers(std::span<const NumberKey> rows, const std::string& file) {
  for (const NumberKey& row : rows) ReadNumber(row, file);
}

int32_t CutToMost(int32_t players) { return players > kMostPlayers ? kMostPlayers : players; }

int32_t NumberOfPlayers(const std::string& iniFile) {
  int32_t players = ReadNumber({"CartPlayers", "TotalNumberCartPlayers", -1}, iniFile);
  const std::string option = "/PLAYERS=";
  if (const size_t place = gCommandLine.find(option); players == -1 && place != std::string::npos) {
    auto start = static_cast<int32_t>(place + option.size() + 1);
    int32_t position = 0;
    players = ToInt32(Val(GetDelimitedField(gCommandLine, start, " ", position, true, true)));
  }
  players = CutToMost(players);
  if (players == -1) {
    players = CountWaveOutDevices(kSampleRate, kMono);
    WriteDebugLog("Number Suitable Wave Out Devices=" + std::to_string(players), -1);
    players = CutToMost(players);
    WriteDebugLog("Checked Number Suitable Wave Out Devices=" + std::to_string(players), -1);
  }
  return players;
}

int32_t DefaultForeColour(int32_t player) {
  switch (player) {
    case 1:
      return 255;
    case 2:
      return 65280;
    case 3:
      return 0xFFA0A0;
    case 5:
      return 65535;
    default:
      return 0xFFFFFF;
  }
}

}  // namespace

void ReadPlayerSettings(const std::string& iniFile) {
  ReadNumber({"CartPlayers", "AutomaticPlayerAssignment", 1}, iniFile);
  const int32_t players = NumberOfPlayers(iniFile);
  gFamilySettings.TotalNumberCartPlayers = players;
  for (int32_t player = 1; player <= players; ++player) {
    const std::string n = std::to_string(player);
    ReadNumber({"CartPlayers", ("SoundCardNumber" + n).c_str(), player}, iniFile);
    ReadNumber({"CartPlayers", ("BackColor" + n).c_str(), 0}, iniFile);
    ReadNumber({"CartPlayers", ("ForeColor" + n).c_str(), DefaultForeColour(player)}, iniFile);
  }
  ReadNumber({"CartPlayers", "Instant", players}, iniFile);
  ReadNumbers(kOrderKeys, iniFile);
  const std::string editor = ReadText({"FileLocations", "SampleEditor", ""}, iniFile);
  ReadText({"FileLocations", "AudioEditor", editor.c_str()}, iniFile);
}

void ReadSoundSettings(const std::string& iniFile) {
  ReadNumbers(kDisplayKeys, iniFile);
  ReadText({"Audio", "CartFontName", "MS Sans Serif"}, iniFile);
  const std::string fade = ReadText({"Audio", "FadeFire", "0.65"}, iniFile);
  ReadNumber({"Audio", "PlayerFadeFirePercent", ToInt32(Val(fade) * 100)}, iniFile);
  ReadNumbers(kPlayingKeys, iniFile);
  auto& numbers = gFamilySettings.Numbers;
  const int32_t general = numbers["Audio/GeneralVolume"];
  if (numbers["Audio/UsePlayerDucking"] == 0) {
    ReadNumber({"Audio", "SweptVolume", 100}, iniFile);
  } else {
    numbers["Audio/SweptVolume"] = general;
  }
  // A volume at the low end of its type has nothing below it to duck to.
  const int32_t ducked = ToInt32(static_cast<double>(general) - 10);
  ReadNumber({"Audio", "DuckAudioVolume", ducked}, iniFile);
  ReadNumber({"Audio", "CartGroupVolume", 100}, iniFile);
  ReadNumber({"Audio", "AdvertVolume", 100}, iniFile);
  const int32_t lastDevice = LastWaveInDevice(kSampleRate, kMono) + 1;
  const int32_t device = ReadNumber({"Audio", "RecordingSoundCard", 1}, iniFile);
  if (device > lastDevice) numbers["Audio/RecordingSoundCard"] = lastDevice;
  ReadNumbers(kRecordingKeys, iniFile);
}

void ReadStoreSettings(const std::string& storeFile, bool storeHasLocation) {
  ReadText({"Audiowall", "PictureFileExtension", "JPG"}, storeFile);
  if (storeHasLocation) ReadNumbers(kStoreKeys, storeFile);
}

void ReadDiscSettings(const std::string& storeFile) {
  ReadNumbers(kRippingKeys, storeFile);
  for (const TextKey& row : kDatabaseKeys) ReadText(row, storeFile);
  ReadNumber({"CDDB", "AllowSubmit", 0}, storeFile);
}

}  // namespace logchecker
