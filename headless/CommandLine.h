// The arguments of logcheck.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "sample/SampleStation.h"

namespace logchecker {

enum class Verb { kCheck, kShow, kCart, kSample };
enum class ReportFormat { kText, kCsv, kJson };

struct Options {
  Verb verb = Verb::kCheck;
  std::string settingsFolder;  // as given; empty for the user's own
  std::optional<int32_t> day;  // day number; without it, tomorrow
  int32_t days = 1;
  ReportFormat format = ReportFormat::kText;
  std::string output;  // station path; empty for standard output
  bool createMissing = false;
  int16_t split = 0;
  std::vector<int32_t> carts;
  std::string sampleFolder;  // as given
  SampleSizes sampleSizes;
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
