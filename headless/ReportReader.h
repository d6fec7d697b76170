// Reads back what `check --format json` and `stations --format json` have written, here or
// anywhere.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace logchecker {

// All texts are UTF-8, since they may come from a system with another code page, and hold whatever
// a name in a log may hold: markup, quotes, line ends and other controls.
struct ReadWarning {
  std::string kind;   // "silent", "midnight", ... ; a newer program may have more of them
  int16_t split = 0;  // 0 where it concerns none alone
  std::string text;
};

struct ReadCounts {
  int64_t breaks = 0;
  int64_t adverts = 0;
  int64_t withoutAudio = 0;
  int64_t mismatches = 0;
};

struct ReadDay {
  int32_t day = 0;        // day number
  int code = 0;           // 0 to 2, see Verdict.h
  std::string trouble;    // why it was not checked; that and the warnings are all there is then
  bool noLogYet = false;  // that is because no split has a log
  ReadCounts counts;
  std::vector<ReadWarning> warnings;
  std::vector<std::string> mismatchTimes;  // as shown; "--:--" for one that has no time
};

struct ReadReport {
  std::string station;
  std::string settings;        // path of its settings folder, wherever that was
  std::string checkedAt;       // UTC, as 2027-01-15T14:03:21Z
  double checkedAtNumber = 0;  // the same as a date number, as Clock::UtcNow gives it
  int code = 0;                // the greatest of the days'
  std::vector<ReadDay> days;   // at least one, in ascending order, none twice
};

// A report, or one clear line (UTF-8, no line ends) that says why there is none.
struct ReportReading {
  std::optional<ReadReport> report;
  std::string failure;  // as a half sentence behind a name: "is cut off at byte 12"
};

// The next bytes, as many as there are at hand; empty at the end. They are read before the next
// call.
using NextBytes = std::function<std::string_view()>;
using TakeReport = std::function<void(ReportReading&&)>;

// The limits, each with one clear reason when it is passed: 16 containers in one another, 1 MiB
// from one value to the next, 1 GiB a report, 16 MiB of a report that are kept, and 100,000 reports
// in a list. Details that are not kept (the adverts of a break, say) cost no memory however many
// there are.
inline constexpr size_t kDeepestReport = 16;
inline constexpr size_t kLongestReportValue = size_t{1} << 20U;
inline constexpr size_t kMostReportBytes = size_t{1} << 30U;
inline constexpr size_t kMostKeptOfAReport = size_t{16} << 20U;
inline constexpr size_t kMostReportsInAList = 100000;

// Reads one report, or a list of them, and hands each over as soon as it is read; one of a list
// that is no good spoils no other. Hands over one failure where the bytes are no such thing, and
// one more where a list breaks off. Fields that are not known are passed over: a layout in which
// that would mislead has another schema number. Throws nothing of its own.
void ReadReports(const NextBytes& next, const TakeReport& take);

// The same for bytes in memory that must be one report.
ReportReading ReadOneReport(std::string_view bytes);

// The same as ReadReports for a file, a station path. A file that can't be read is a failure too.
void ReadReportFile(const std::string& path, const TakeReport& take);

}  // namespace logchecker
