// The arguments of logcheck.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "headless/DayReport.h"
#include "sample/SampleStation.h"

namespace logchecker {

enum class Verb { kCheck, kStations, kBoard, kWatch, kShow, kCart, kSample };
enum class ReportFormat { kText, kCsv, kJson, kHtml };

struct Options {
  Verb verb = Verb::kCheck;
  std::string settingsFolder;  // as given; empty for the user's own
  std::optional<int32_t> day;  // day number; without it, tomorrow
  int32_t days = 1;
  ReportFormat format = ReportFormat::kText;
  std::string output;  // station path; empty for standard output
  bool createMissing = false;
  bool skipMissing = false;  // leaves out days that have no log yet
  bool dated = false;        // CSV with a date column for one day too
  std::string station;       // its name; empty for that of the settings folder
  std::vector<WarningKind> accepted;
  std::string stationList;  // station path
  int32_t jobs = 0;         // stations at once; 0 for as many as there are processors
  int32_t timeoutSeconds = 600;
  std::vector<std::string> settingsSwitches;  // /LI: and /PLAYERS=, in station text
  int32_t every = 10;                         // seconds between two looks of a watch
  std::string run;  // a watch's command for its reports, as given; empty for none
  int16_t split = 0;
  std::vector<int32_t> carts;
  std::vector<std::string> reports;  // of a board, as given
  std::string title;                 // of a board; empty for one of its own
  std::optional<int32_t> staleHours;
  std::string sampleFolder;  // as given
  SampleSizes sampleSizes;
  std::optional<int32_t> sampleMistakes;
  int32_t sampleSeed = 0;
  int32_t sampleMissingDays = 0;
  std::string wholeLine;  // the arguments joined by blanks, in station text
};

struct ParsedArguments {
  std::optional<Options> options;  // without it the program ends with `exitCode`
  int exitCode = 0;
  std::string message;  // help for standard output, or an error line, in station text
};

// /LI: and /PLAYERS= are left to the settings, which look for them in the whole line.
ParsedArguments ParseArguments(const std::vector<std::string>& arguments);

}  // namespace logchecker
