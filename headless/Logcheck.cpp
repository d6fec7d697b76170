#include "headless/Logcheck.h"

#include <algorithm>

#include "common/Dates.h"
#include "common/GeneralSettings.h"
#include "common/Lookalikes.h"
#include "headless/CommandLine.h"
#include "headless/Output.h"
#include "headless/Reports.h"
#include "headless/Station.h"
#include "platform/StandardStreams.h"
#include "platform/StationText.h"
#include "sample/SampleStation.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

namespace {

int32_t FirstDay(const Options& options) { return options.day.value_or(Today() + 1); }

void WriteOrThrow(const std::string& path, const std::string& bytes) {
  const std::string failure = WriteReport(path, bytes);
  if (!failure.empty()) throw Trouble(failure);
}

void RequireCheckableSplits() {
  const int16_t splits = gGeneralSettings.NumberActiveSplits;
  if (splits >= 1 && splits <= kMostSplits) return;
  throw Trouble("NumberActiveSplits=" + std::to_string(splits) + " in " + gSettingsFile +
                " is outside 1 to " + std::to_string(kMostSplits));
}

std::string Report(const Options& options, const std::vector<DayReport>& days) {
  switch (options.format) {
    case ReportFormat::kCsv: {
      // Programs get what a name holds, byte for byte; a terminal would obey it.
      const std::string csv = CsvReport(days, options.days > 1);
      const bool isShown = options.output.empty() && StandardOutputIsTerminal();
      return isShown ? ToUtf8(WithoutControls(csv)) : csv;
    }
    case ReportFormat::kJson:
      return JsonReport(days);
    default:
      return TextReport(days);
  }
}

int Check(const Options& options) {
  TerminalUi ui(options.createMissing);
  ReadStationSettings(options, ui);
  RequireCheckableSplits();
  OpenStore(ui);
  std::vector<DayReport> days;
  int result = kAllMatch;
  bool anyChecked = false;
  for (int32_t day = FirstDay(options); days.size() < static_cast<size_t>(options.days); ++day) {
    days.push_back(CheckDay(day));
    ui.WriteWarnings();
    WarnOfUnreadableParts();
    const DayReport& report = days.back();
    if (!report.trouble.empty()) {
      WriteErrorLine(report.trouble);
      result = kTrouble;
      continue;
    }
    anyChecked = true;
    if (!report.mismatches.empty()) result = std::max(result, kSomethingDiffers);
  }
  // A day that could not be checked leaves an earlier report as it was, but for JSON, which says
  // so.
  if (anyChecked || options.format == ReportFormat::kJson) {
    TellLookalike(options.output);
    ui.WriteWarnings();
    WriteOrThrow(options.output, Report(options, days));
  }
  return result;
}

int Show(const Options& options) {
  TerminalUi ui(options.createMissing);
  ReadStationSettings(options, ui);
  OpenStore(ui);
  SplitSettings& settings = SettingsOf(options.split);
  settings.LogDate = FirstDay(options);
  gSplits(options.split).LoadLogFile();
  ui.WriteWarnings();
  if (settings.LogFileNumber == 0) {
    throw Trouble("no log for split " + std::to_string(options.split) + " \"" + settings.SplitName +
                  "\": " + GetLogSourcePath(options.split, settings.LogDate, false));
  }
  WriteOrThrow("", GridReport(options.split));
  return kAllMatch;
}

int Cart(const Options& options) {
  TerminalUi ui(options.createMissing);
  ReadStationSettings(options, ui);
  OpenStore(ui);
  WriteOrThrow("", CartReport(options.carts));
  return kAllMatch;
}

int Sample(const Options& options) {
  SampleStation station;
  station.firstDay = FirstDay(options);
  station.days = options.days;
  station.sizes = options.sampleSizes;
  WriteSampleStation(options.sampleFolder, station);
  return kAllMatch;
}

int RunVerb(const Options& options) {
  switch (options.verb) {
    case Verb::kShow:
      return Show(options);
    case Verb::kCart:
      return Cart(options);
    case Verb::kSample:
      return Sample(options);
    default:
      return Check(options);
  }
}

}  // namespace

int RunLogcheck(const std::vector<std::string>& arguments) {
  const ParsedArguments parsed = ParseArguments(arguments);
  if (!parsed.options) {
    const std::string trouble =
        parsed.exitCode == kAllMatch ? WriteReport("", parsed.message) : parsed.message;
    if (trouble.empty()) return kAllMatch;
    WriteErrorLine(trouble);
    return kTrouble;
  }
  int result = kTrouble;
  try {
    result = RunVerb(*parsed.options);
  } catch (const std::exception& trouble) {
    WriteErrorLine(trouble.what());
  }
  CloseStation();
  return result;
}

}  // namespace logchecker
