#include "headless/Logcheck.h"

#include "common/PathText.h"
#include "headless/BoardVerb.h"
#include "headless/CheckVerb.h"
#include "headless/CommandLine.h"
#include "headless/Output.h"
#include "headless/Reports.h"
#include "headless/Station.h"
#include "headless/StationsVerb.h"
#include "headless/Verdict.h"
#include "headless/WatchVerb.h"
#include "sample/SampleStation.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

namespace {

void WriteOrThrow(const std::string& path, const std::string& bytes) {
  const std::string failure = WriteReport(path, bytes);
  if (!failure.empty()) throw Trouble(failure);
}

int Show(const Options& options) {
  TerminalUi ui(options.createMissing);
  ReadStationSettings(options, ui);
  OpenStore(ui);
  WarnOfUnreadableParts();
  SplitSettings& settings = SettingsOf(options.split);
  settings.LogDate = FirstDay(options);
  gSplits(options.split).LoadLogFile();
  WriteWarnings(ui);
  if (settings.LogFileNumber == 0) {
    throw Trouble("no log for split " + std::to_string(options.split) + " \"" + settings.SplitName +
                  "\": " + ShownPath(GetLogSourcePath(options.split, settings.LogDate, false)));
  }
  WriteOrThrow("", GridReport(options.split));
  return kAllMatch;
}

int Cart(const Options& options) {
  TerminalUi ui(options.createMissing);
  ReadStationSettings(options, ui);
  OpenStore(ui);
  WarnOfUnreadableParts();
  WriteOrThrow("", CartReport(options.carts));
  return kAllMatch;
}

int Sample(const Options& options) {
  SampleStation station;
  station.firstDay = FirstDay(options);
  station.days = options.days;
  station.sizes = options.sampleSizes;
  station.mistakes = options.sampleMistakes;
  station.seed = options.sampleSeed;
  station.missingDays = options.sampleMissingDays;
  WriteSampleStation(options.sampleFolder, station);
  return kAllMatch;
}

int RunVerb(const Options& options) {
  switch (options.verb) {
    case Verb::kStations:
      return RunStations(options);
    case Verb::kBoard:
      return RunBoard(options);
    case Verb::kWatch:
      return RunWatch(options);
    case Verb::kShow:
      return Show(options);
    case Verb::kCart:
      return Cart(options);
    case Verb::kSample:
      return Sample(options);
    default:
      return RunCheck(options);
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
