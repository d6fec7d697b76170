// The mistakes that are planted into the sample station.
#include <algorithm>
#include <numeric>
#include <random>

#include "sample/SamplePlan.h"

namespace logchecker {

namespace {

// Below this many breaks there is no room for every mistake of every day.
constexpr int32_t kLeastBreaksForMistakes = 12;

// The split itself, or the first one where the station has fewer.
int16_t SplitOrFirst(int16_t split, int16_t splits) { return split <= splits ? split : int16_t{1}; }

bool MinuteAfterIsFree(const SamplePlan& plan, int32_t breakIndex) {
  const int32_t late = plan.MinuteOf(breakIndex) + 1;
  return breakIndex + 1 < plan.breaks && plan.MinuteOf(breakIndex + 1) > late;
}

// One that the check finds: with one split there is nothing that its breaks could differ from, so
// that a cart without audio is the only one.
SampleMistake::Kind DrawKind(const SamplePlan& plan, int32_t breakIndex, uint32_t drawn) {
  constexpr std::array<SampleMistake::Kind, 4> kKinds = {
      SampleMistake::kMissing, SampleMistake::kOver, SampleMistake::kNoAudio, SampleMistake::kLate};
  if (plan.splits == 1) return SampleMistake::kNoAudio;
  const SampleMistake::Kind kind = kKinds[drawn % kKinds.size()];
  const bool late = kind == SampleMistake::kLate;
  return late && !MinuteAfterIsFree(plan, breakIndex) ? SampleMistake::kMissing : kind;
}

}  // namespace

void PlantMistakes(SamplePlan& plan) {
  if (plan.splits < 2 || plan.breaks < kLeastBreaksForMistakes) return;
  const int32_t sixth = plan.breaks / 6;
  plan.mistakes = {
      {SampleMistake::kMissing, 1, sixth},
      {SampleMistake::kOver, 2, 2 * sixth},
      {SampleMistake::kWithin, std::min<int16_t>(3, plan.splits), 3 * sixth},
      {SampleMistake::kNoAudio, SplitOrFirst(4, plan.splits), 4 * sixth},
  };
  if (MinuteAfterIsFree(plan, 5 * sixth)) {
    plan.mistakes.push_back({SampleMistake::kLate, SplitOrFirst(5, plan.splits), 5 * sixth});
  }
}

std::vector<SampleMistake> MistakesOf(const SamplePlan& plan, int32_t day) {
  if (!plan.mistakesADay) return plan.mistakes;
  constexpr uint32_t kOwnDraws = 0x9E3779B9U;  // not those of the adverts
  std::mt19937 draws(SampleSeed(plan, day) ^ kOwnDraws);
  std::vector<int32_t> breaks(static_cast<size_t>(plan.breaks));
  std::iota(breaks.begin(), breaks.end(), 0);
  // The library's shuffle differs from one system to the other.
  for (size_t i = breaks.size(); i > 1; --i) std::swap(breaks[i - 1], breaks[draws() % i]);
  breaks.resize(static_cast<size_t>(*plan.mistakesADay));
  std::sort(breaks.begin(), breaks.end());
  std::vector<SampleMistake> mistakes;
  for (const int32_t breakIndex : breaks) {
    const auto split = static_cast<int16_t>(1 + draws() % static_cast<uint32_t>(plan.splits));
    mistakes.push_back({DrawKind(plan, breakIndex, draws()), split, breakIndex});
  }
  return mistakes;
}

}  // namespace logchecker
