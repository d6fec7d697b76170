// What was found at many stations, as bytes.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "headless/CommandLine.h"
#include "headless/ReportReader.h"
#include "headless/StationList.h"

namespace logchecker {

// One station that has been checked, or could not be.
struct StationOutcome {
  ReadReport report;  // as `check` wrote it, or one that says why there is none
  // The bytes of that report, from byte `position` on as far as they are at hand; empty behind the
  // last.
  std::function<std::string_view(size_t position)> json;
};

// Takes the stations in the list's order, one by one, and writes what is to be said of each.
class StationsReport {
 public:
  using Write = std::function<void(std::string_view bytes)>;

  virtual ~StationsReport() = default;
  virtual void Begin(const std::vector<ListedStation>& stations, const Write& write) = 0;
  virtual void Add(const StationOutcome& outcome, const Write& write) = 0;
  virtual void End(const Write& write) = 0;
  // Whether Add looks at `json`; the bytes of those that wait for their turn are kept then.
  virtual bool NeedsJson() const { return false; }
};

// A line a station with its verdict, below it the days that are not as they should be, and a
// summary. UTF-8.
std::unique_ptr<StationsReport> MakeStationsText();

// A list of the stations' reports. UTF-8.
std::unique_ptr<StationsReport> MakeStationsJson();

// All of them on one page, as `board` makes it of their reports. UTF-8.
std::unique_ptr<StationsReport> MakeStationsHtml(const Options& options);

// The one of the three that the options ask for.
std::unique_ptr<StationsReport> MakeStationsReport(const Options& options);

}  // namespace logchecker
