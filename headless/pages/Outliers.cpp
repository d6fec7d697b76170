#include "headless/pages/Outliers.h"

#include <algorithm>

namespace logchecker {

namespace {

// How many splits have the break with the length of split i.
size_t CountLike(const BreakMismatch& mismatch, size_t i) {
  const auto& lengths = mismatch.Lengths;
  return static_cast<size_t>(
      std::count_if(lengths.begin(), lengths.end(), [&](const BreakMismatch::Length& other) {
        return other.found && LengthsMatch({lengths[i].seconds, other.seconds});
      }));
}

bool AreAlike(const AdvertReport& a, const AdvertReport& b) {
  return a.audio == b.audio && LengthsMatch({a.length, b.length});
}

}  // namespace

Outliers OutliersOf(const BreakMismatch& mismatch) {
  const auto& lengths = mismatch.Lengths;
  Outliers result;
  size_t most = 0;
  size_t found = 0;
  for (size_t i = 0; i < lengths.size(); ++i) {
    if (!lengths[i].found) continue;
    ++found;
    const size_t like = CountLike(mismatch, i);
    if (like > most) {
      most = like;
      result.usual = i;
    }
  }
  const size_t missing = lengths.size() - found;
  const auto isLikeUsual = [&](size_t i) {
    return lengths[i].found && LengthsMatch({lengths[i].seconds, lengths[*result.usual].seconds});
  };
  result.mostMissing = missing > most;
  bool tied = result.mostMissing;
  for (size_t i = 0; i < lengths.size() && !tied && result.usual; ++i) {
    tied = lengths[i].found && !isLikeUsual(i) && CountLike(mismatch, i) == most;
  }
  if (tied) result.usual.reset();
  for (size_t i = 0; i < lengths.size(); ++i) {
    const bool odd = lengths[i].found ? !result.usual || !isLikeUsual(i) : missing <= found;
    result.odd.push_back(odd);
  }
  return result;
}

std::vector<bool> OddAdverts(const std::vector<AdvertReport>& adverts,
                             const std::vector<AdvertReport>& usual) {
  const size_t shorter = std::min(adverts.size(), usual.size());
  size_t begin = 0;
  while (begin < shorter && AreAlike(adverts[begin], usual[begin])) ++begin;
  size_t end = adverts.size();
  size_t usualEnd = usual.size();
  while (end > begin && usualEnd > begin && AreAlike(adverts[end - 1], usual[usualEnd - 1])) {
    --end;
    --usualEnd;
  }
  std::vector<bool> odd(adverts.size(), false);
  std::fill(odd.begin() + static_cast<long>(begin), odd.begin() + static_cast<long>(end), true);
  // The usual one has more: the place where they are missing.
  if (begin == end && usualEnd > begin && !adverts.empty()) {
    odd[std::min(begin, adverts.size() - 1)] = true;
  }
  return odd;
}

}  // namespace logchecker
