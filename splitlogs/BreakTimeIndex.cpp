#include "splitlogs/BreakTimeIndex.h"

#include <algorithm>

namespace logchecker {

void BreakTimeIndex::SetRows(int32_t rows) {
  times_.resize(static_cast<size_t>(rows), 0.0F);
  stale_ = true;
}

void BreakTimeIndex::SetTime(int32_t row, float seconds) {
  times_[static_cast<size_t>(row)] = seconds;
  stale_ = true;
}

void BreakTimeIndex::Build() const {
  if (!stale_) return;
  stale_ = false;
  greatest_.clear();
  firstOfTime_.clear();
  // Almost every row has the time 0, and the first of these is all that counts.
  bool zeroSeen = false;
  for (size_t row = 1; row < times_.size(); ++row) {
    const float time = times_[row];
    greatest_.push_back(row == 1 ? time : std::max(greatest_.back(), time));
    if (time == 0 && zeroSeen) continue;
    zeroSeen = zeroSeen || time == 0;
    firstOfTime_.emplace_back(time, static_cast<int32_t>(row));
  }
  const auto earlier = [](const auto& a, const auto& b) { return a.first < b.first; };
  std::stable_sort(firstOfTime_.begin(), firstOfTime_.end(), earlier);
}

int32_t BreakTimeIndex::FirstAt(float seconds) const {
  Build();
  const auto place =
      std::lower_bound(firstOfTime_.begin(), firstOfTime_.end(), seconds,
                       [](const auto& entry, float time) { return entry.first < time; });
  return place != firstOfTime_.end() && place->first == seconds ? place->second : 0;
}

int32_t BreakTimeIndex::FirstAtOrAfter(float seconds) const {
  Build();
  const auto place = std::lower_bound(greatest_.begin(), greatest_.end(), seconds);
  const bool found = place != greatest_.end() && *place >= seconds;
  return found ? static_cast<int32_t>(place - greatest_.begin()) + 1 : 0;
}

}  // namespace logchecker
