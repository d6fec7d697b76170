// What was found, as bytes: for people, as CSV, as JSON, as a page.
#pragma once

#include <string>
#include <vector>

#include "headless/DayReport.h"

namespace logchecker {

struct CheckReport {
  std::string station;    // its name
  std::string settings;   // path of the settings folder
  std::string checkedAt;  // UTC, as 2027-01-15T14:03:21Z
  std::vector<WarningKind> accepted;
  std::vector<DayReport> days;
};

// The station, then a table a day, the adverts whose carts have no audio, by split, and the other
// warnings. In English and UTF-8, whatever the system's language.
std::string TextReport(const CheckReport& report);

// The bytes of the desktop's export, or with `withDate` the same with a first column "Date".
// Headings stand alone when nothing differs or nothing could be checked. In the station's code
// page.
std::string CsvReport(const CheckReport& report, bool withDate);

// UTF-8, as docs/logcheck.schema.json has it.
std::string JsonReport(const CheckReport& report);

// A page with all in it, which runs nothing and fetches nothing: the days as pictures and tables.
std::string HtmlReport(const CheckReport& report);

// The number of the JSON's layout, raised when a reader of the one before would misread it.
inline constexpr int kJsonSchema = 1;

// One split's grid, tab separated, a row a line. UTF-8.
std::string GridReport(int16_t splitNumber);

// A line for each cart, tab separated. UTF-8.
std::string CartReport(const std::vector<int32_t>& carts);

}  // namespace logchecker
