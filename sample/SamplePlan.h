// The plan of the sample station: its splits, its carts, and the breaks of a day.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "sample/SampleStation.h"

namespace logchecker {

struct SampleSplit {
  const char* name;
  const char* folder;  // below "logs"; splits that share one share its files
  const char* chainCode;
  bool filtersByChain;  // the settings name the chain code
  const char* preSuffix;
  bool suffix;
  const char* dateFormat;
  const char* extension;
  bool oldForm;
};

inline constexpr std::array<SampleSplit, 10> kSampleSplits = {{
    {"Larkfield", "Larkfield", "LRK", false, "", false, "YYMMDD", "LOG", true},
    {"Easton", "Easton and Weston", "EST", true, "", false, "YYMMDD", "LOG", false},
    {"Weston", "Easton and Weston", "WST", true, "", false, "YYMMDD", "LOG", false},
    {"Coast", "Coast", "CST", false, "CST", true, "DDMMYY", "LOG", false},
    {"Hill Country", "Hill Country", "HIL", false, "HIL", false, "YYYYMMDD", "TXT", false},
    {"Valley", "Valley", "VAL", false, "VAL", false, "YYYYMMDD", "TXT", false},
    {"Harbour", "Harbour", "HBR", false, "HBR", false, "YYYYMMDD", "TXT", false},
    {"Moors", "Moors", "MRS", false, "MRS", false, "YYYYMMDD", "TXT", false},
    {"Lakes", "Lakes", "LKS", false, "LKS", false, "YYYYMMDD", "TXT", false},
    {"Borders", "Borders", "BRD", false, "BRD", false, "YYYYMMDD", "TXT", false},
}};

// Carts.
inline constexpr int32_t kSampleCarts = 4000;
inline constexpr int32_t kLengthClasses = 6;
inline constexpr std::array<float, kLengthClasses> kClassSeconds = {10.02F, 15.0F, 20.05F,
                                                                    29.98F, 40.0F, 59.96F};
inline constexpr float kOverTolerance = 1.5F;  // seconds
inline constexpr float kWithinTolerance = 0.3F;
inline constexpr int32_t kLastJingle = 60;     // carts 1 to here
inline constexpr int32_t kFirstAdvert = 1001;  // six classes in turn
inline constexpr int32_t kAdvertsOfAClass = 480;
inline constexpr int32_t kFirstLongAdvert = 3901;     // one of each class, over the tolerance
inline constexpr int32_t kFirstLongishAdvert = 3911;  // one of each class, within it
inline constexpr int32_t kUnusedAdvert = 3950;        // named by a log, and empty
inline constexpr int32_t kFirstSilentCart = 3960;     // used, with texts and without audio
inline constexpr int32_t kLastSilentCart = 3963;

inline constexpr int32_t AdvertCart(int32_t lengthClass, int32_t pick) {
  return kFirstAdvert + pick % kAdvertsOfAClass * kLengthClasses + lengthClass;
}

// What a log calls a cart, and the first line of the cart itself.
std::string SampleCartTitle(int32_t cart);

// Breaks.
struct SampleBreak {
  int32_t minute = 0;  // of the day, from 1 to 1440
  std::vector<int32_t> carts;
};

struct SampleMistake {
  enum Kind { kMissing, kOver, kWithin, kNoAudio, kLate } kind = kMissing;
  int16_t split = 0;
  int32_t breakIndex = 0;
};

struct SamplePlan {
  int16_t splits = 5;
  int32_t breaks = 60;
  int32_t adverts = 5;
  bool individualListFiles = false;
  std::vector<SampleMistake> mistakes;  // of every day
  std::optional<int32_t> mistakesADay;  // drawn for each day instead
  int32_t seed = 0;

  int32_t MinuteOf(int32_t breakIndex) const { return 1 + breakIndex * 1440 / breaks; }
};

SamplePlan PlanSample(const SampleStation& station);

// The mistakes of a day, no two in the same break.
std::vector<SampleMistake> MistakesOf(const SamplePlan& plan, int32_t day);
// Fills in those that every day has; none where there is no room for them.
void PlantMistakes(SamplePlan& plan);

// What the draws of a day begin with.
uint32_t SampleSeed(const SamplePlan& plan, int32_t day);

// The breaks of one split on one day, with the mistakes that are planted there.
std::vector<SampleBreak> PlanBreaks(const SamplePlan& plan, int16_t split, int32_t day);

// Each writes its share of the station below `base`, a station path, or throws Trouble.
void WriteSampleSettings(const SamplePlan& plan, const std::string& base);
void WriteSampleStore(const SamplePlan& plan, const std::string& base);
void WriteSampleLogs(const SamplePlan& plan, const SampleStation& station, const std::string& base);
// The marker file among them.
void WriteSampleReadme(const SamplePlan& plan, const SampleStation& station,
                       const std::string& base);

// Throws Trouble when a log of this plan would meet a grid row that equals the row count, since
// such a log stops the program.
void RequireLoadableLogs(const SamplePlan& plan);

// Folders below the base.
std::string SampleCartFolder(const std::string& base, int16_t part);
std::string SampleLogFolder(const std::string& base, int16_t split);
inline constexpr char kSampleMarker[] = "\\SAMPLE.TXT";

// Makes a folder with those above it; writes a file. Throw Trouble.
void MakeSampleFolder(const std::string& path);
void WriteSampleFile(const std::string& path, const std::string& bytes);

}  // namespace logchecker
