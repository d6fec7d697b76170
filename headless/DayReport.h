// What the check of one day found.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "checking/BreakCheck.h"

namespace logchecker {

// What is not to be trusted, or is for a person to mend, beside the mismatches.
enum class WarningKind {
  kSilent,      // adverts whose carts have no audio
  kMidnight,    // a break at 00:00, which the comparison passes over
  kPassedOver,  // another break that the comparison never came to
  kMissingLog,  // a split without a log, or with one that has no advert for it, beside others
  kStation,     // what opening or reading the store had to say
};

// "silent", "midnight", "passed-over", "missing-log", "station".
const char* NameOf(WarningKind kind);

struct Warning {
  WarningKind kind = WarningKind::kStation;
  int16_t split = 0;  // 0 where it concerns none alone
  std::string text;   // one line, station text
};

// An advert whose cart has no audio.
struct SilentAdvert {
  int32_t row = 0;   // of the grid
  std::string time;  // of its break, as the grid shows it
  int32_t cart = 0;
  std::string description;
  std::string reference;
  std::string position;  // in the log, in bytes from 1
};

// A break of a split, for a picture of the day.
struct BreakReport {
  float time = 0;               // seconds into the day; below 0 where it can't be read
  std::optional<float> length;  // seconds; nothing for a break that the comparison passed over
  int32_t row = 0;              // of the grid, its first
  int32_t adverts = 0;
  int32_t silentAdverts = 0;
  int32_t firstSilentAdvert = 0;  // the place of the first of them in the split's list
};

struct SplitReport {
  int16_t number = 0;
  std::string name;
  std::string logPath;
  bool loaded = false;  // the day has a log
  int32_t breaks = 0;
  int32_t adverts = 0;
  std::vector<SilentAdvert> silentAdverts;
  std::vector<BreakReport> breakList;
};

// An advert of a break that does not match.
struct AdvertReport {
  int32_t row = 0;  // of the grid
  int32_t cart = 0;
  std::string description;
  std::string reference;
  float length = 0;  // of its cart, in seconds; 0 without audio
  bool audio = false;
};

// The adverts of one break in each split, in the order of the splits; nothing where a split has no
// break at that time.
using BreakAdverts = std::vector<std::optional<std::vector<AdvertReport>>>;

struct DayReport {
  int32_t day = 0;
  std::string trouble;    // why there is no result; empty otherwise
  bool noLogYet = false;  // that is because no active split has a log
  int32_t toleranceMS = 0;
  std::vector<SplitReport> splits;  // the active ones
  std::vector<Warning> warnings;
  ListView results;  // the rows of the results window
  std::vector<BreakMismatch> mismatches;
  std::vector<BreakAdverts> adverts;  // in step with the mismatches
};

inline constexpr float kLastSecondOfADay = 86400;

// Why a day with such a row has no other.
inline constexpr char kNotCompared[] =
    "every split begins at 00:00, or at a time that can't be read, and such a day is not compared";

// The row that stands for a day that begins at 00:00 in every split: it has no time of its own.
bool HasNoTime(const BreakMismatch& mismatch);

}  // namespace logchecker
