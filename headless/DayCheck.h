// The check of one day, and what it found.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "checking/BreakCheck.h"

namespace logchecker {

// An advert whose cart has no audio.
struct SilentAdvert {
  int32_t row = 0;   // of the grid
  std::string time;  // of its break, as the grid shows it
  int32_t cart = 0;
  std::string description;
  std::string reference;
  std::string position;  // in the log, in bytes from 1
};

struct SplitReport {
  int16_t number = 0;
  std::string name;
  std::string logPath;
  bool loaded = false;
  int32_t breaks = 0;
  int32_t adverts = 0;
  std::vector<SilentAdvert> silentAdverts;
};

struct DayReport {
  int32_t day = 0;
  std::string trouble;  // why there is no result; empty otherwise
  int32_t toleranceMS = 0;
  std::vector<SplitReport> splits;  // the active ones
  ListView results;                 // the rows of the results window
  std::vector<BreakMismatch> mismatches;
};

// Loads the day into the active splits, starting with all logs closed so that no day is read from
// another's log, and checks it. A split without a log beside others that have one gets a warning on
// standard error.
DayReport CheckDay(int32_t day);

}  // namespace logchecker
