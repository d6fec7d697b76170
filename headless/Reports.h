// What was found, as bytes: for people, as CSV, as JSON.
#pragma once

#include <string>
#include <vector>

#include "headless/DayCheck.h"

namespace logchecker {

// A table a day, then the adverts whose carts have no audio, by split. UTF-8.
std::string TextReport(const std::vector<DayReport>& days);

// The bytes of the desktop's export, or with `withDate` the same with a first column "Date".
// Headings stand alone when nothing differs. In the station's code page.
std::string CsvReport(const std::vector<DayReport>& days, bool withDate);

// UTF-8, laid out as the headless documentation says.
std::string JsonReport(const std::vector<DayReport>& days);

// One split's grid, tab separated, a row a line. UTF-8.
std::string GridReport(int16_t splitNumber);

// A line for each cart, tab separated. UTF-8.
std::string CartReport(const std::vector<int32_t>& carts);

}  // namespace logchecker
