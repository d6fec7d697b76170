#include "headless/DayCheck.h"

#include "cartstore/OpenAudiowall.h"
#include "common/DatePicture.h"
#include "common/ErrorState.h"
#include "common/GeneralSettings.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "headless/TerminalUi.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitLogTable.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

namespace {

SilentAdvert DescribeAdvert(const LogGrid& grid, int32_t row, const std::string& time) {
  SilentAdvert advert;
  advert.row = row;
  advert.time = time;
  advert.cart = ToInt32(Val(grid.Text(row, kCartColumn)));
  advert.description = Trim(grid.Text(row, kDescriptionColumn));
  advert.reference = Trim(grid.Text(row, kReferenceColumn));
  advert.position = grid.Text(row, kPositionColumn);
  return advert;
}

void CountGrid(const LogGrid& grid, SplitReport& report) {
  std::string time;
  for (int32_t row = 1; row < grid.Rows(); ++row) {
    if (!grid.IsAdvertRow(row)) continue;
    ++report.adverts;
    if (!grid.Text(row, kTimeColumn).empty()) {
      time = grid.Text(row, kTimeColumn);
      ++report.breaks;
    }
    if (grid.BackColour(row, kLengthColumn) == kRed) {
      report.silentAdverts.push_back(DescribeAdvert(grid, row, time));
    }
  }
}

SplitReport LoadSplit(int16_t splitNumber, int32_t day) {
  SplitSettings& settings = SettingsOf(splitNumber);
  settings.LogDate = day;
  SplitReport report;
  report.number = splitNumber;
  report.name = settings.SplitName;
  report.logPath = GetLogSourcePath(splitNumber, day, false);
  gSplits(splitNumber).LoadLogFile();
  report.loaded = settings.LogFileNumber != 0;
  CountGrid(gSplits(splitNumber).gridLog, report);
  return report;
}

std::string NameOf(const SplitReport& split) {
  return "split " + std::to_string(split.number) + " \"" + split.name + "\"";
}

// Warns of splits without a log; says why the day can't be checked when there is none at all.
std::string TellMissingLogs(const std::vector<SplitReport>& splits, int32_t day) {
  bool anyLoaded = false;
  for (const SplitReport& split : splits) anyLoaded = anyLoaded || split.loaded;
  std::string missing;
  for (const SplitReport& split : splits) {
    if (split.loaded) continue;
    const std::string text = NameOf(split) + ": " + split.logPath;
    if (anyLoaded) {
      WriteErrorLine("warning: no log for " + IsoDate(day) + ": " + text);
    } else {
      missing += (missing.empty() ? "" : "; ") + text;
    }
  }
  return anyLoaded ? "" : "no active split has a log for " + IsoDate(day) + " (" + missing + ")";
}

}  // namespace

DayReport CheckDay(int32_t day) {
  DayReport report;
  report.day = day;
  report.toleranceMS = gGeneralSettings.BreakDifferenceMS;
  CloseLogFiles();
  ReopenReplacedParts();
  try {
    for (int16_t n = 1; n <= gGeneralSettings.NumberActiveSplits; ++n) {
      report.splits.push_back(LoadSplit(n, day));
    }
    report.trouble = TellMissingLogs(report.splits, day);
    if (!report.trouble.empty()) return report;
    BreakCheck check;
    check.BuildColumns();
    check.CheckBreaks();
    report.results = std::move(check.lvwResults);
    report.mismatches = std::move(check.Mismatches);
  } catch (const RunTimeError& error) {
    report.trouble = "the check of " + IsoDate(day) + " stopped: " + error.what();
  }
  return report;
}

}  // namespace logchecker
