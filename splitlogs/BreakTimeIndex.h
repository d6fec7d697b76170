// Answers the searches by time that are defined as scans of a grid's rows from row 1.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace logchecker {

// Holds the time of each row and, built anew after a change when it is next asked, the first row of
// each time and the rows at which the greatest time so far rises.
class BreakTimeIndex {
 public:
  // Rows from 0; a new row has the time 0. Row 0 is never found.
  void SetRows(int32_t rows);
  void SetTime(int32_t row, float seconds);
  float Time(int32_t row) const { return times_[static_cast<size_t>(row)]; }

  // The first row from 1 on with this very time, or 0.
  int32_t FirstAt(float seconds) const;
  // The first row from 1 on with this time or a greater one, or 0.
  int32_t FirstAtOrAfter(float seconds) const;

 private:
  void Build() const;

  std::vector<float> times_;
  mutable bool stale_ = false;
  // The rows whose time is greater than all before them, in order.
  mutable std::vector<std::pair<float, int32_t>> rises_;
  mutable std::vector<std::pair<float, int32_t>> firstOfTime_;  // by time
};

}  // namespace logchecker
