#include "headless/CheckVerb.h"

#include <algorithm>

#include "common/FileHelpers.h"
#include "common/GeneralSettings.h"
#include "common/Lookalikes.h"
#include "common/PathText.h"
#include "headless/DayCheck.h"
#include "headless/Output.h"
#include "headless/Reports.h"
#include "headless/Station.h"
#include "headless/Unchecked.h"
#include "headless/Verdict.h"
#include "platform/StandardStreams.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

void RequireCheckableSplits() {
  const int16_t splits = gGeneralSettings.NumberActiveSplits;
  if (splits >= 1 && splits <= kMostSplits) return;
  throw Trouble("NumberActiveSplits=" + std::to_string(splits) + " in " + gSettingsFile +
                " is outside 1 to " + std::to_string(kMostSplits));
}

std::vector<Warning> StationWarnings(const std::vector<std::string>& messages) {
  std::vector<Warning> warnings;
  warnings.reserve(messages.size());
  for (const std::string& message : messages) {
    warnings.push_back({WarningKind::kStation, 0, OneLine(message)});
  }
  return warnings;
}

void Add(std::vector<Warning>& warnings, const std::vector<Warning>& more) {
  warnings.insert(warnings.end(), more.begin(), more.end());
}

// CSV has no place for warnings, so adverts without audio go where the others do. Those of the
// station are written as they come.
void TellWarnings(const Options& options, const std::vector<Warning>& warnings) {
  for (const Warning& warning : warnings) {
    if (warning.kind == WarningKind::kSilent && options.format != ReportFormat::kCsv) continue;
    if (warning.kind == WarningKind::kStation) continue;
    WriteErrorLine("warning: " + warning.text);
  }
}

DayReport CheckAndTell(const Options& options, TerminalUi& ui, int32_t day) {
  DayReport report = CheckDay(day);
  WriteWarnings(ui);
  Add(report.warnings, StationWarnings(ui.TakeWarnings()));
  Add(report.warnings, StationWarnings(WarnOfUnreadableParts()));
  if (options.skipMissing && report.noLogYet) return report;
  TellWarnings(options, report.warnings);
  if (!report.trouble.empty()) WriteErrorLine(report.trouble);
  return report;
}

std::vector<DayReport> CheckDays(const Options& options) {
  TerminalUi ui(options.createMissing);
  ReadStationSettings(options, ui);
  RequireCheckableSplits();
  OpenStore(ui);
  const std::vector<Warning> opening = StationWarnings(ui.TakeWarnings());
  std::vector<DayReport> days;
  for (int32_t i = 0; i < options.days; ++i) {
    days.push_back(CheckAndTell(options, ui, FirstDay(options) + i));
    Add(days.back().warnings, opening);
  }
  return days;
}

// Leaves out days that have no log yet. Where that is every one nothing was checked, and they stay.
void SkipMissing(std::vector<DayReport>& days) {
  const auto isMissing = [](const DayReport& day) { return day.noLogYet; };
  if (!std::all_of(days.begin(), days.end(), isMissing)) {
    days.erase(std::remove_if(days.begin(), days.end(), isMissing), days.end());
    return;
  }
  for (const DayReport& day : days) WriteErrorLine(day.trouble);
}

}  // namespace

std::string ReportInFormat(const Options& options, const CheckReport& report) {
  switch (options.format) {
    case ReportFormat::kCsv: {
      // Programs get what a name holds, byte for byte; a terminal would obey it.
      const std::string csv = CsvReport(report, options.dated || options.days > 1);
      const bool isShown = options.output.empty() && StandardOutputIsTerminal();
      return isShown ? ToUtf8(WithoutControls(csv)) : csv;
    }
    case ReportFormat::kJson:
      return JsonReport(report);
    case ReportFormat::kHtml:
      return HtmlReport(report);
    default:
      return TextReport(report);
  }
}

void WarnOfLookalike(const Options& options) {
  TerminalUi ui(options.createMissing);
  TellLookalike(options.output);
  WriteWarnings(ui);
}

CheckReport CheckStation(Options options) {
  // Midnight may come in the middle of the check.
  options.day = FirstDay(options);
  CheckReport report;
  report.accepted = options.accepted;
  try {
    report.days = CheckDays(options);
    if (options.skipMissing) SkipMissing(report.days);
  } catch (const std::exception& trouble) {
    WriteErrorLine(trouble.what());
    report.days = UncheckedDays(options, OneLine(trouble.what()));
  }
  report.settings = GetWindowsFolder();
  report.station = options.station.empty() ? GetFileNamePart(report.settings) : options.station;
  report.checkedAt = CheckTime();
  return report;
}

int RunCheck(const Options& options) {
  const CheckReport report = CheckStation(options);
  WarnOfLookalike(options);
  const std::string failure = WriteReport(options.output, ReportInFormat(options, report));
  if (!failure.empty()) throw Trouble(failure);
  return CodeOf(report.days, report.accepted);
}

}  // namespace logchecker
