// A made-up station to try the program on, and, with sizes given, to measure it with.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace logchecker {

// Sizes of the sample station; without any of them it is the station of the documentation.
struct SampleSizes {
  std::optional<int32_t> splits;
  std::optional<int32_t> breaks;
  std::optional<int32_t> adverts;

  bool AnyGiven() const { return splits || breaks || adverts; }
};

struct SampleStation {
  int32_t firstDay = 0;
  int32_t days = 1;
  SampleSizes sizes;
  // Mistakes a day, each of which the check finds, drawn anew for each day; without it the same few
  // on every day, as the documentation has them.
  std::optional<int32_t> mistakes;
  int32_t seed = 0;         // another one draws other adverts and mistakes
  int32_t missingDays = 0;  // the last days, for which no log is written
};

// Writes settings, cart store and logs into `folder`, which is to stand for the Windows folder.
// With sizes given the store has part list files alone. Throws Trouble when a size would make a log
// that stops the program, when there are more mistakes than breaks or more missing days than days,
// when the folder holds the settings of another station, and when something can't be written.
void WriteSampleStation(const std::string& folder, const SampleStation& station);

}  // namespace logchecker
