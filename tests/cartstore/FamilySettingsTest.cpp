#include "cartstore/FamilySettings.h"

#include "cartstore/AudioSettings.h"
#include "cartstore/WaveDeviceSearch.h"
#include "common/GeneralSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class FamilySettingsTest : public StationTest {
 protected:
  FamilySettingsTest() {
    os.waveOutFormats = {kWaveFormat4M16, kWaveFormat4M16, kWaveFormat4M16};
    os.waveInFormats = std::vector<uint32_t>{};
  }
  void Load(const std::string& family = "") {
    folder().WriteFile("VELMAR.INI", family);
    LoadAudioSettings("VELMAR.INI", "");
  }
  static int32_t Number(const std::string& key) { return gFamilySettings.Numbers.at(key); }
};

TEST_F(FamilySettingsTest, TheDefaultsAreAsTheFamilyHasThem) {
  Load();
  const std::pair<const char*, int32_t> numbers[] = {
      {"CartPlayers/AutomaticPlayerAssignment", 1},
      {"CartPlayers/TotalNumberCartPlayers", -1},
      {"CartPlayers/SoundCardNumber1", 1},
      {"CartPlayers/BackColor1", 0},
      {"CartPlayers/ForeColor1", 255},
      {"CartPlayers/Instant", 1},
      {"CartPlayers/EditPlayer", 0},
      {"CartPlayers/FirstPlayerInOrder", 1},
      {"CartPlayers/LastPlayerInOrder", 255},
      {"CartPlayers/RegisterAsToolbars", 0},
      {"Carts/KeyboardClose", 0},
      {"Carts/MouseClose", 1},
      {"Carts/HighlightPlayedCarts", 0},
      {"Carts/HighlightPLayedCartsInterval", 0},
      {"Audio/AudioEditorPriority", 10},
      {"Audio/AudioEditorRunAtIdleSpeed", 0},
      {"Audio/MaintainLegacyCartList", 1},
      {"Audio/LockPlayerWhenRecording", 0},
      {"Audio/UseLargeSSBuffers", 0},
      {"Audio/SSDebugMode", 0},
      {"Audio/SelectedCartMode", 1},
      {"Audio/SelectedCartColor", 0xC00000},
      {"Audio/SelectedCartColorText", 0xFFFFFF},
      {"Audio/CartPlayedRecentColor", 255},
      {"Audio/ShowTimesBarInColor", 1},
      {"Audio/TimesBarColor", 0xC00000},
      {"Audio/TimesBarColorText", 0xFFFFFF},
      {"Audio/CartNumberColor", 255},
      {"Audio/DisplayCartHasAudioAsSquare", 0},
      {"Audio/EmptyCartNumberColor", 0x9A9A9A},
      {"Audio/CartFontBold", 0},
      {"Audio/CartFontSize", 8},
      {"Audio/DisplayCartTimeHours", 0},
      {"Audio/CartShowCompressed", 0},
      {"Audio/PlayerFadeFirePercent", 65},
      {"Audio/PlayerFadeSeconds", 2},
      {"Audio/PlayCartsInstantly", 1},
      {"Audio/OnlyAllowEjectStoppedCarts", 0},
      {"Audio/UseLegacyFileCopyMode", 0},
      {"Audio/UsePlayerDucking", 1},
      {"Audio/GeneralVolume", 100},
      {"Audio/SweptVolume", 100},
      {"Audio/DuckAudioVolume", 90},
      {"Audio/CartGroupVolume", 100},
      {"Audio/AdvertVolume", 100},
      {"Audio/RecordingSoundCard", 1},
      {"Audio/KHz", 44100},
      {"Audio/Channels", 2},
      {"Audio/Format", 1},
      {"Audio/AllowDifferentFormat", 0},
      {"Audio/RecordLocal", 0},
      {"CDRipping/AskBeforeProcess", 0},
      {"CDRipping/NormaliseAudioPercent", 63},
      {"CDRipping/AutoTopAudio", 1},
      {"CDDB/AllowCDDB", 0},
      {"CDDB/AllowSubmit", 0},
  };
  for (const auto& [key, value] : numbers) EXPECT_EQ(value, Number(key)) << key;
  EXPECT_EQ("", gFamilySettings.Texts.at("FileLocations/SampleEditor"));
  EXPECT_EQ("MS Sans Serif", gFamilySettings.Texts.at("Audio/CartFontName"));
  EXPECT_EQ("0.65", gFamilySettings.Texts.at("Audio/FadeFire"));
  EXPECT_EQ("JPG", gFamilySettings.Texts.at("Audiowall/PictureFileExtension"));
  EXPECT_EQ("", gFamilySettings.Texts.at("CDDB/EmailAddress"));
  EXPECT_FALSE(gFamilySettings.Texts.at("CDDB/ServerAddress").empty());
  // Of a store without a location these two are not read.
  EXPECT_EQ(0U, gFamilySettings.Numbers.count("Audiowall/AllowAudioFileLinking"));
  EXPECT_EQ(0U, gFamilySettings.Numbers.count("CartChunk/UseCopyrightInCartChunk"));
}

TEST_F(FamilySettingsTest, SomeDefaultsFollowOtherKeys) {
  Load(
      "[FileLocations]\r\nSampleEditor=ED.EXE\r\n[Audio]\r\nFadeFire=0.4\r\nGeneralVolume=70\r\n"
      "SweptVolume=5\r\n");
  EXPECT_EQ("ED.EXE", gFamilySettings.Texts.at("FileLocations/AudioEditor"));
  EXPECT_EQ(40, Number("Audio/PlayerFadeFirePercent"));
  EXPECT_EQ(60, Number("Audio/DuckAudioVolume"));
  EXPECT_EQ(70, Number("Audio/SweptVolume"));  // ducking is on
  Load("[Audio]\r\nUsePlayerDucking=0\r\nSweptVolume=5\r\n");
  EXPECT_EQ(5, Number("Audio/SweptVolume"));
}

TEST_F(FamilySettingsTest, WhatStandsWithTheStoreIsReadFromTheStoresFile) {
  Os().directories.MakeDirectory(Path("wall"));
  const auto text = [](const std::string& n, const std::string& word) {
    return "[Audiowall]\r\nVersion=3\r\nPictureFileExtension=" + word +
           "\r\nAllowAudioFileLinking=" + n + "\r\n[CartChunk]\r\nUseCopyrightInCartChunk=" + n +
           "\r\n[CDRipping]\r\nAskBeforeProcess=" + n + "\r\nNormaliseAudioPercent=" + n +
           "\r\nAutoTopAudio=" + n + "\r\n[CDDB]\r\nAllowCDDB=" + n + "\r\nServerAddress=" + word +
           "\r\nEmailAddress=" + word + "\r\nAllowSubmit=" + n + "\r\n";
  };
  folder().WriteFile("wall/Audwall.ini", text("7", "store"));
  Load("[FileLocations]\r\nCarts1=" + Path("wall") + "\r\n" + text("8", "family"));
  for (const char* key : {"Audiowall/AllowAudioFileLinking", "CartChunk/UseCopyrightInCartChunk",
                          "CDRipping/AskBeforeProcess", "CDRipping/NormaliseAudioPercent",
                          "CDRipping/AutoTopAudio", "CDDB/AllowCDDB", "CDDB/AllowSubmit"}) {
    EXPECT_EQ(7, Number(key)) << key;
  }
  for (const char* key :
       {"Audiowall/PictureFileExtension", "CDDB/ServerAddress", "CDDB/EmailAddress"}) {
    EXPECT_EQ("store", gFamilySettings.Texts.at(key)) << key;
  }
}

TEST_F(FamilySettingsTest, TheRestIsReadFromTheFamilysFile) {
  Load();
  const auto defaults = gFamilySettings.Numbers;
  std::map<std::string, std::string> sections;
  for (const auto& [name, value] : defaults) {
    const size_t slash = name.find('/');
    const std::string key = name.substr(slash + 1);
    // With ducking on, the swept volume is not read.
    const int32_t other = key == "UsePlayerDucking" ? 0 : (key == "RecordingSoundCard" ? 0 : 77);
    sections[name.substr(0, slash)] += key + "=" + std::to_string(other) + "\r\n";
  }
  std::string family;
  for (const auto& [section, keys] : sections) family += "[" + section + "]\r\n" + keys;
  Load(family);
  for (const auto& [name, value] : gFamilySettings.Numbers) {
    const bool ofTheStore = name.find("CDRipping/") == 0 || name.find("CDDB/") == 0;
    const bool off = name == "Audio/UsePlayerDucking" || name == "Audio/RecordingSoundCard";
    EXPECT_EQ(ofTheStore ? defaults.at(name) : (off ? 0 : 77), value) << name;
  }
  EXPECT_EQ(1, gFamilySettings.TotalNumberCartPlayers);
}

TEST_F(FamilySettingsTest, TheRecordingDeviceIsCutToOneAboveTheLastSuitable) {
  os.waveInFormats = {kWaveFormat4M16, kWaveFormat4M16, 0};
  Load("[Audio]\r\nRecordingSoundCard=9\r\n");
  EXPECT_EQ(2, Number("Audio/RecordingSoundCard"));
  Load("[Audio]\r\nRecordingSoundCard=2\r\n");
  EXPECT_EQ(2, Number("Audio/RecordingSoundCard"));
  os.waveInFormats = {kWaveFormat4S16, 0};
  Load("[Audio]\r\nRecordingSoundCard=2\r\n");
  EXPECT_EQ(1, Number("Audio/RecordingSoundCard")) << "none is suitable";
}

TEST_F(FamilySettingsTest, ThereIsRoomForOnePlayer) {
  struct Case {
    const char* commandLine;
    const char* family;
    std::vector<uint32_t> devices;
    int32_t players;
  };
  const Case cases[] = {
      {"/PLAYERS=3", "", {}, 1},
      {"X /PLAYERS= 0 Y", "", {kWaveFormat4M16}, 0},
      {"/PLAYERS=0", "[CartPlayers]\r\nTotalNumberCartPlayers=1\r\n", {}, 1},
      {"", "[CartPlayers]\r\nTotalNumberCartPlayers=5\r\n", {}, 1},
      {"", "[CartPlayers]\r\nTotalNumberCartPlayers=0\r\n", {kWaveFormat4M16}, 0},
      {"", "", {kWaveFormat4M16, kWaveFormat4M16}, 1},
      {"", "", {kWaveFormat4S16}, 0},
      {"", "", {}, 0},
  };
  for (const Case& row : cases) {
    gCommandLine = row.commandLine;
    os.waveOutFormats = row.devices;
    Load(row.family);
    EXPECT_EQ(row.players, gFamilySettings.TotalNumberCartPlayers) << row.commandLine;
    EXPECT_EQ(row.players == 1, gFamilySettings.Numbers.count("CartPlayers/ForeColor1") == 1);
  }
}

TEST_F(FamilySettingsTest, TheWaveRoutinesKnowThreeRatesAndTwoChannelCounts) {
  struct Case {
    uint32_t flag;
    int32_t rate;
    int16_t channels;
  };
  const Case cases[] = {{kWaveFormat1M16, 11025, 1}, {kWaveFormat1S16, 11025, 2},
                        {kWaveFormat2M16, 22050, 1}, {kWaveFormat2S16, 22050, 2},
                        {kWaveFormat4M16, 44100, 1}, {kWaveFormat4S16, 44100, 2},
                        {kWaveFormat4S16, 44100, 0}};
  for (const Case& row : cases) {
    os.waveOutFormats = {~row.flag, row.flag, ~row.flag, row.flag | 1U, ~row.flag};
    os.waveInFormats = {row.flag, ~row.flag, row.flag};
    EXPECT_EQ(1, FindWaveOutDevice(0, row.rate, row.channels));
    EXPECT_EQ(1, FindWaveOutDevice(1, row.rate, row.channels));
    EXPECT_EQ(3, FindWaveOutDevice(2, row.rate, row.channels));
    EXPECT_EQ(-1, FindWaveOutDevice(4, row.rate, row.channels));
    EXPECT_EQ(2, CountWaveOutDevices(row.rate, row.channels));
    EXPECT_EQ(3, LastWaveOutDevice(row.rate, row.channels));
    EXPECT_EQ(2, LastWaveInDevice(row.rate, row.channels));
  }
}

TEST_F(FamilySettingsTest, NoDeviceSuitsAnotherRateOrFailsToAnswer) {
  os.waveOutFormats = {0xFFFFFFFFU};
  os.waveInFormats = {0xFFFFFFFFU};
  EXPECT_EQ(-1, FindWaveOutDevice(0, 48000, 1));
  EXPECT_EQ(0, CountWaveOutDevices(48000, 1));
  EXPECT_EQ(0, LastWaveOutDevice(48000, 1));
  EXPECT_EQ(0, LastWaveInDevice(48000, 1));
  os.script.FailNamed("WaveDevices.OutFormats", 0, kDeviceIoError);
  EXPECT_EQ(0, CountWaveOutDevices(44100, 1));
}

}  // namespace
}  // namespace logchecker
