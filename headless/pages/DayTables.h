// The tables of a day: its splits, what does not match, the adverts without audio.
#pragma once

#include <cstddef>
#include <string>

#include "headless/DayReport.h"

namespace logchecker {

// A row a split: its breaks, adverts, mismatches and adverts without audio. It says what the
// picture shows.
std::string SplitTable(const DayReport& day);

// The rows of the results window, with their texts. The first `withAdverts` of them lead to the
// adverts of their break.
std::string MismatchTable(const DayReport& day, size_t withAdverts);

// The adverts whose carts have no audio; "" where all have.
std::string SilentTable(const DayReport& day);

}  // namespace logchecker
