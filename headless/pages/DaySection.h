// One day of a page.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "headless/DayReport.h"

namespace logchecker {

// The day's verdict, what is not to be trusted, its picture and its tables; a day that could not be
// checked says why and no more. `mostBytes` bounds the adverts side by side.
std::string DaySection(const DayReport& day, const std::vector<WarningKind>& accepted,
                       size_t mostBytes);

}  // namespace logchecker
