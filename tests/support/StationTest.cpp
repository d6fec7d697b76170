#include "tests/support/StationTest.h"

#include <algorithm>
#include <filesystem>

#include "cartbrowser/FindCart.h"
#include "cartbrowser/SearchHistory.h"
#include "cartstore/FamilySettings.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "common/ErrorState.h"
#include "common/GeneralFunctions.h"
#include "common/GeneralSettings.h"
#include "common/Lookalikes.h"
#include "shell/LoadLogs.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

void ResetGlobals() {
  gErrorState = ErrorState();
  ForgetToldLookalikes();
  gDebugLevel = 0;
  gDebugLogName.clear();
  gDebugIndent = 0;
  gGeneralSettings = GeneralSettings();
  gRawCommandLine.clear();
  gCommandLine.clear();
  gSettingsFile = kDefaultSettingsFile;
  gDataPath.clear();
  gOSVersionInfo = OSVERSIONINFO();
  gAudioSettings = AudioSettings();
  gFamilySettings = FamilySettings();
  gAudiowallParts = {};
  gNumberOfCarts = kDefaultNumberOfCarts;
  gLastSearches = {};
  gLastFoundCart = 0;
  InitialiseBlankCart();
  gSplitSettings = {};
  gUseDestinationDirectory = false;
  gSplits.SetFactory({});
  gSplits.UnloadAll();
  CurrentLogDate = 0;
}

StationTest::StationTest() { ResetGlobals(); }

StationTest::~StationTest() {
  RealPlatform().files.CloseAll();
  ResetGlobals();
}

void StationTest::MakeStore(int32_t numberOfCarts) {
  std::string locations = "[FileLocations]\r\n";
  for (int16_t part = 1; part <= GetCartPart(numberOfCarts); ++part) {
    const std::string name = "part" + std::to_string(part);
    Os().directories.MakeDirectory(Path(name));
    locations += "Carts" + std::to_string(part) + "=" + Path(name) + "\r\n";
  }
  folder().WriteFile("VELMAR.INI", locations);
  Os().profiles.WriteString("Audiowall", "NoCarts", std::to_string(numberOfCarts),
                            Path("part1") + "\\Audwall.ini");
  Os().profiles.WriteString("Audiowall", "Version", "2.6", Path("part1") + "\\Audwall.ini");
  LoadAudioSettings(kFamilySettingsFile, "");
}

void StationTest::OpenStore(int32_t numberOfCarts) {
  MakeStore(numberOfCarts);
  ASSERT_EQ(0, OpenAudiowall(0, true));
}

void StationTest::PutCart(int32_t number, const CartRecord& record) {
  const int16_t part = GetCartPart(number);
  const auto file = static_cast<int16_t>(PartEntry(part).FileNumber);
  ASSERT_EQ(kNoError, Os().files.PutRecord(file, number - (part - 1) * kCartsOfAPart, &record));
}

void StationTest::PutCart(int32_t number, float length) { PutCart(number, RecordOfLength(length)); }

void StationTest::ReplaceListFile(int16_t part, float length) {
  const std::string name = "part" + std::to_string(part) + "/Carts" + std::to_string(part) + ".lst";
  const CartRecord record = RecordOfLength(length);
  std::string bytes;
  const size_t size = folder().ReadFile(name).size();
  while (bytes.size() < size) {
    bytes.append(reinterpret_cast<const char*>(&record), sizeof record);
  }
  std::filesystem::rename(Path(name), Path(name + ".old"));
  folder().WriteFile(name, bytes);
}

void StationTest::WriteLog(int16_t split, int32_t day, std::string_view text) {
  SplitSettings& settings = SettingsOf(split);
  const std::string name = "logs" + std::to_string(split);
  Os().directories.MakeDirectory(Path(name));
  settings.LogSourceDirectory = Path(name);
  settings.DateFormat = "YYMMDD";
  settings.Extension = "LOG";
  settings.LogDate = day;
  folder().WriteFile(name + "/" + GetLogFileName(split, day, false), text);
}

CartRecord RecordOfLength(float seconds, std::string_view line1) {
  CartInfo info = gBlankCartInfo;
  std::copy_n(line1.begin(), std::min(line1.size(), info.Line1.size()), info.Line1.begin());
  info.Length = seconds;
  info.TotalLength = seconds;
  info.EndPoint = seconds;
  info.PlayLength = seconds;
  CartRecord record;
  CartRecordFromInfo(record, info);
  return record;
}

}  // namespace logchecker
