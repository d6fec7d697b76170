#include "splitlogs/SplitSettings.h"

#include "common/ErrorState.h"
#include "common/Numbers.h"
#include "common/SystemHelpers.h"
#include "platform/Platform.h"
#include "platform/StationText.h"

namespace logchecker {

std::array<SplitSettings, kMostSplits> gSplitSettings;

SplitSettings& SettingsOf(int16_t splitNumber) {
  if (splitNumber < 1 || splitNumber > kMostSplits) {
    throw RunTimeError(kSubscriptOutOfRange, "split " + std::to_string(splitNumber));
  }
  return gSplitSettings[static_cast<size_t>(splitNumber - 1)];
}

namespace {

// Keys of the log's name, in the order of reading; the split's number stands behind each. They are
// kept in upper case.
struct NameKey {
  const char* key;
  const char* byDefault;
  std::string SplitSettings::*field;
};

constexpr NameKey kNameKeys[] = {
    {"Extension", "LOG", &SplitSettings::Extension},
    {"ReconcileExtension", "REC", &SplitSettings::ReconcileExtension},
    {"DateFormat", "yymmdd", &SplitSettings::DateFormat},
    {"PreSuffix", "", &SplitSettings::PreSuffix},
    {"LogTXChainCode", "", &SplitSettings::LogTXChainCode},
};

constexpr int32_t kDefaultUpdateInterval = 20;

class Reader {
 public:
  Reader(const std::string& file, int16_t splitNumber)
      : file_(file), number_(std::to_string(splitNumber)) {}

  std::string Text(const char* section, const char* key, const std::string& byDefault) const {
    return Os().profiles.GetString(section, key + number_, byDefault, kTextBufferLength, file_);
  }
  int16_t Number(const char* section, const char* key, int32_t byDefault) const {
    return ClampToInt16(Os().profiles.GetInt(section, key + number_, byDefault, file_));
  }

 private:
  const std::string& file_;
  std::string number_;
};

void LoadOne(const std::string& settingsFile, int16_t splitNumber) {
  const Reader reader(settingsFile, splitNumber);
  SplitSettings& settings = SettingsOf(splitNumber);
  const std::string programFolder = GetProgramFolder();
  settings.SplitName = reader.Text("General", "SplitName", "Split " + std::to_string(splitNumber));
  for (const NameKey& row : kNameKeys) {
    settings.*row.field = ToUpper(reader.Text("LogFileName", row.key, row.byDefault));
  }
  settings.Suffix = reader.Number("LogFileName", "Suffix", 0);
  settings.LogSourceDirectory =
      reader.Text("General", "LogSourceDirectory", programFolder + "\\source");
  settings.LogDestinationDirectory =
      reader.Text("General", "LogDestinationDirectory", programFolder + "\\dest");
  settings.LogUpdateInterval =
      reader.Number("General", "LogUpdateInterval", kDefaultUpdateInterval);
}

}  // namespace

void LoadSplitSettings(const std::string& settingsFile, int16_t splitNumber) {
  if (splitNumber != 0) {
    LoadOne(settingsFile, splitNumber);
    return;
  }
  for (int16_t n = 1; n <= kMostSplits; ++n) LoadOne(settingsFile, n);
}

}  // namespace logchecker
