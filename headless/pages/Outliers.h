// Which splits a break differs in.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "headless/DayReport.h"

namespace logchecker {

// By split, in the order of the mismatch's lengths.
struct Outliers {
  std::vector<bool> odd;
  // A split with the length that more splits share than any other. Without one, where no length is
  // shared more often than another or most have no break, every break is odd.
  std::optional<size_t> usual;
  bool mostMissing = false;  // more splits are without the break than share any length
};

// Lengths are the same where the comparison would let them pass. A split without the break is odd
// unless most are without it.
Outliers OutliersOf(const BreakMismatch& mismatch);

// Of the adverts of a break, those that are not as in the `usual` one: all between the beginning
// and the end that are as long in both, one by one. Where one is missing, the next one is marked
// for it.
std::vector<bool> OddAdverts(const std::vector<AdvertReport>& adverts,
                             const std::vector<AdvertReport>& usual);

}  // namespace logchecker
