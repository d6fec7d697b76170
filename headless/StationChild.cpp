#include "headless/StationChild.h"

#include <algorithm>
#include <vector>

#include "common/DatePicture.h"
#include "common/ErrorState.h"
#include "headless/DayReport.h"
#include "headless/Station.h"
#include "platform/Platform.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

// The first line that the child said, without its own name in front; "" when it said nothing.
std::string FirstWords(const std::string& errors) {
  constexpr std::string_view kOwnName = "logcheck: ";
  constexpr size_t kMost = 1000;
  std::string_view line = std::string_view(errors).substr(0, errors.find('\n'));
  if (line.substr(0, kOwnName.size()) == kOwnName) line.remove_prefix(kOwnName.size());
  std::string text;
  FromUtf8(line.substr(0, kMost), &text);
  return WithoutControls(text);
}

// The bytes that a child wrote, read once from the beginning.
NextBytes OutputOf(int32_t child, int32_t* error) {
  return [child, error, position = int64_t{0}]() mutable {
    std::string_view bytes;
    *error = Os().processes.ReadOutput(child, position, &bytes);
    position += static_cast<int64_t>(bytes.size());
    return bytes;
  };
}

// The report must be of this station and of these days: anything else is not an answer.
std::string WhatDoesNotFit(const ListedStation& station, const Options& options, int exitCode,
                           const ReadReport& report) {
  if (report.station != ToUtf8(station.name)) return "is another station's";
  if (report.code != exitCode) return "says another code than the check's own";
  const int32_t first = FirstDay(options);
  const bool otherDays = std::any_of(
      report.days.begin(), report.days.end(),
      [&](const ReadDay& day) { return day.day < first || day.day >= first + options.days; });
  const bool tooFew =
      !options.skipMissing && report.days.size() != static_cast<size_t>(options.days);
  return otherDays || tooFew ? "is of other days" : "";
}

}  // namespace

ChildOrder OrderFor(const ListedStation& station, const Options& options) {
  ChildOrder order;
  order.seconds = options.timeoutSeconds;
  order.arguments = options.settingsSwitches;
  const std::vector<std::string> words = {"check",
                                          "--settings=" + station.settings,
                                          "--station=" + station.name,
                                          "--date=" + IsoDate(FirstDay(options)),
                                          "--days=" + std::to_string(options.days),
                                          "--format=json"};
  order.arguments.insert(order.arguments.end(), words.begin(), words.end());
  for (const WarningKind kind : options.accepted) {
    order.arguments.push_back(std::string("--accept=") + NameOf(kind));
  }
  if (options.skipMissing) order.arguments.emplace_back("--skip-missing");
  if (options.createMissing) order.arguments.emplace_back("--create-missing");
  return order;
}

ReportReading JudgeChild(const ListedStation& station, const Options& options, int32_t child,
                         const ChildEnd& end) {
  const auto fail = [&](const std::string& reason) {
    const std::string words = FirstWords(end.errors);
    const std::string said = words.empty() ? "" : "; it said: " + words;
    return ReportReading{std::nullopt, "the check of the station " + reason + said};
  };
  if (!end.reason.empty()) return fail(end.reason);
  std::vector<ReportReading> readings;
  int32_t error = kNoError;
  std::string_view first;
  const std::string ended = "ended with code " + std::to_string(end.exitCode);
  if (Os().processes.ReadOutput(child, 0, &first) == kNoError && first.empty()) {
    return fail(ended + " and printed no report");
  }
  ReadReports(OutputOf(child, &error), [&](ReportReading&& reading) {
    if (readings.size() < 2) readings.push_back(std::move(reading));
  });
  if (error != kNoError) return fail(ended + " and its report can't be read: " + ErrorText(error));
  for (const ReportReading& reading : readings) {
    if (!reading.report) return fail(ended + " and its report " + reading.failure);
  }
  if (readings.size() != 1) return fail(ended + " and printed several reports");
  const std::string unfit = WhatDoesNotFit(station, options, end.exitCode, *readings[0].report);
  return unfit.empty() ? std::move(readings[0]) : fail(ended + " and its report " + unfit);
}

}  // namespace logchecker
