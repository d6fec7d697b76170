// The settings record of each split.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "common/GeneralSettings.h"

namespace logchecker {

struct SplitSettings {
  std::string SplitName;
  std::string Extension;
  std::string DateFormat;
  int16_t Suffix =
      0;  // non-zero: PreSuffix follows the date in the file name; 0: it goes before it
  std::string PreSuffix;
  std::string LogTXChainCode;  // which lines of a log belong to the split; empty means all
  std::string ReconcileExtension;
  std::string LogSourceDirectory;
  std::string LogDestinationDirectory;
  int16_t LogUpdateInterval = 0;  // read and written back; nothing uses it
  // Of the run, untouched when the settings are read again.
  std::string CurrentLogPath;  // of the log that was last opened
  int32_t CurrentLogDay = 0;   // the day that it is of, as a day number
  int16_t LogFileNumber = 0;   // of the open log; 0 means none
  int32_t LogDate = 0;         // the loaded day
  int32_t LogFileDay = 0;      // date stamp of the open log, as a day number
  float LogFileSeconds = 0;    // and as seconds into that day
};

// There are always ten, whatever NumberActiveSplits says; index is the split number less 1.
extern std::array<SplitSettings, kMostSplits> gSplitSettings;

// The settings of a split, from 1 to 10; error 9 stops the program for any other.
SplitSettings& SettingsOf(int16_t splitNumber);

// Reads one split's settings, or all ten with `splitNumber` 0. A missing key gives its default.
void LoadSplitSettings(const std::string& settingsFile, int16_t splitNumber);

}  // namespace logchecker
