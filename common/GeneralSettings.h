// The general settings: program-wide values, filled at start and changed by their dialog.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

inline constexpr int16_t kMostSplits = 10;

struct GeneralSettings {
  int16_t NumberActiveSplits = 2;   // how many splits are shown and checked
  int32_t BreakDifferenceMS = 500;  // tolerance of the comparison, in milliseconds
  bool DisplayAdvertHH = false;     // hundredths on the length of each advert row
  bool DisplayBreakHH = true;       // hundredths on the total of each break
  bool DisplayCheckHH = true;       // hundredths in the results of the check
};

extern GeneralSettings gGeneralSettings;

// The command line as it was given, without the program's name, and the same in upper case.
extern std::string gRawCommandLine;
extern std::string gCommandLine;

inline constexpr char kDefaultSettingsFile[] = "VELKLT.INI";
inline constexpr char kFamilySettingsFile[] = "VELMAR.INI";

// The file that every key of this program is read from and written to.
extern std::string gSettingsFile;
// `Data` of the family-wide file; held, and nothing reads it.
extern std::string gDataPath;

// Text values are read through a buffer of this many characters, so a longer one arrives cut.
inline constexpr int32_t kTextBufferLength = 255;

// Stops the program with error 9, naming the key, when NumberActiveSplits lies outside 0 to 10: no
// range is checked when it is read.
void RequireSplitsInRange();

}  // namespace logchecker
