// The adverts of breaks that do not match, side by side.
#pragma once

#include <cstddef>
#include <string>

#include "headless/DayReport.h"

namespace logchecker {

struct AdvertTables {
  std::string html;
  size_t shown = 0;  // so many of the day's mismatches, from the first on
};

// For each mismatch its reason in words and a table: a column a split, a row for each place in the
// break, the sums below. What differs from the usual break is set off, and a cart without audio
// said. Ends before `mostBytes`, so that a day in which nothing matches still makes a page that
// opens.
AdvertTables AdvertTablesOf(const DayReport& day, size_t mostBytes);

// Adverts of one break that are shown; the rest is counted.
inline constexpr size_t kMostAdvertRows = 100;

}  // namespace logchecker
