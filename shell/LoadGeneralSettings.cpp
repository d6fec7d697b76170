#include "shell/LoadGeneralSettings.h"

#include "common/FileHelpers.h"
#include "common/GeneralSettings.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "platform/Platform.h"
#include "platform/StationText.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

namespace {

std::string SettingsFileOfCommandLine() {
  const size_t place = gCommandLine.find("/LI:");
  if (place == std::string::npos) return kDefaultSettingsFile;
  const size_t name = gRawCommandLine.find(".INI", place + 1);
  if (name == std::string::npos) return kDefaultSettingsFile;
  auto start = static_cast<int32_t>(name) + 1;
  int32_t position = 0;
  return GetDelimitedField(gCommandLine, start, " ", position, true, false);
}

int32_t ReadNumber(const char* key, int32_t byDefault) {
  return Os().profiles.GetInt("General", key, byDefault, gSettingsFile);
}

}  // namespace

void SetCommandLine(const std::string& commandLine) {
  gRawCommandLine = commandLine;
  gCommandLine = ToUpper(commandLine);
}

void LoadGeneralSettings() {
  gSettingsFile = SettingsFileOfCommandLine();
  gDataPath = Os().profiles.GetString("FileLocations", "Data", "", kTextBufferLength, "Velmar.ini");
  gGeneralSettings.NumberActiveSplits = ClampToInt16(ReadNumber("NumberActiveSplits", 2));
  LoadSplitSettings(gSettingsFile, 0);
  gGeneralSettings.BreakDifferenceMS = ReadNumber("BreakDifferenceMS", 500);
  gGeneralSettings.DisplayAdvertHH = ReadNumber("DisplayAdvertHH", 0) != 0;
  gGeneralSettings.DisplayBreakHH = ReadNumber("DisplayBreakHH", 1) != 0;
  gGeneralSettings.DisplayCheckHH = ReadNumber("DisplayCheckHH", 1) != 0;
}

bool SettingsAreThere() {
  return GetFileLength(GetWindowsFolder() + "\\" + kDefaultSettingsFile) > 0;
}

}  // namespace logchecker
