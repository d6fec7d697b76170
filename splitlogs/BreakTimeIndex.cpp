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
  rises_.clear();
  firstOfTime_.clear();
  // Almost every row has the time 0, and the first of these is all that counts.
  bool zeroSeen = false;
  for (size_t row = 1; row < times_.size(); ++row) {
    const float time = times_[row];
    if (time == 0 && zeroSeen) continue;
    zeroSeen = zeroSeen || time == 0;
    const std::pair entry(time, static_cast<int32_t>(row));
    if (rises_.empty() || time > rises_.back().first) rises_.push_back(entry);
    firstOfTime_.push_back(entry);
  }
  const auto earlier = [](const auto& a, const auto& b) { return a.first < b.first; };
  std::stable_sort(firstOfTime_.begin(), firstOfTime_.end(), earlier);
}

namespace {

// The first entry, of those in ascending order of their times, that has this time or a later one.
auto FirstFrom(const std::vector<std::pair<float, int32_t>>& entries, float seconds) {
  return std::lower_bound(entries.begin(), entries.end(), seconds,
                          [](const auto& entry, float time) { return entry.first < time; });
}

}  // namespace

int32_t BreakTimeIndex::FirstAt(float seconds) const {
  Build();
  const auto place = FirstFrom(firstOfTime_, seconds);
  return place != firstOfTime_.end() && place->first == seconds ? place->second : 0;
}

int32_t BreakTimeIndex::FirstAtOrAfter(float seconds) const {
  Build();
  const auto place = FirstFrom(rises_, seconds);
  return place != rises_.end() && place->first >= seconds ? place->second : 0;
}

}  // namespace logchecker
