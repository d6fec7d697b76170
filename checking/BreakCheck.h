// The comparison of the breaks of a day across all active splits. The results window is a face of
// it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "common/GeneralSettings.h"
#include "common/ListView.h"

namespace logchecker {

struct ProgressBar {
  int32_t Max = 1;
  int32_t Value = 0;
};

// What a row of the results stands for; times and lengths in seconds, lengths by split.
struct BreakMismatch {
  float Time = 0;  // seconds
  struct Length {
    bool found = false;
    float seconds = 0;
  };
  std::vector<Length> Lengths;
};

class BreakCheck {
 public:
  // Gives lvwResults its columns: "Time" and one for each active split. Done once, when the results
  // are first wanted; a later check keeps them.
  void BuildColumns();

  // Walks the break times of all active splits in ascending order and adds a row to lvwResults for
  // each at which a split has no break, or the lengths differ by more than the tolerance. A row's
  // key is "t" and its time in seconds. Reads the grids of the loaded logs and, anew, the cart
  // store.
  //
  // A break at 00:00 is passed over. When every loaded split begins there, one row with the time
  // "--:--" is all that comes of the day: this is meant.
  void CheckBreaks();

  ListView lvwResults;
  std::vector<BreakMismatch> Mismatches;  // in step with the rows of lvwResults
  std::vector<float> TimesCompared;       // seconds, ascending; 99999 for the row without a time
  // In step with TimesCompared, by the split's number less 1: the length of its break in seconds,
  // kNoBreak where it has none.
  static constexpr float kNoBreak = -1;
  std::vector<std::array<float, kMostSplits>> LengthsCompared;
  ProgressBar ProgressBar1;
  bool cmdPrintEnabled = false;
  bool cmdSaveEnabled = false;
  bool picNoResultsVisible = false;

 private:
  bool PrepareProgress();
  void ShowProgress(int32_t value);
  void Walk();
  void AddRow(float time, const struct BreaksAtATime& breaks);
};

// Whether lengths in seconds are within the tolerance of the shortest of them, by the rule of the
// comparison. A length that is no finite number never is.
bool LengthsMatch(const std::vector<float>& lengths);

// The time in seconds that a row's key stands for.
float TimeOfResultKey(const std::string& key);

}  // namespace logchecker
