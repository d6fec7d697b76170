// Options as they are typed, and what they mean.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "headless/CommandLine.h"

namespace CLI {
class App;
}

namespace logchecker {

// The texts that the parser fills; what they mean is settled afterwards.
struct RawTexts {
  std::string date;
  std::string output;
  std::string format = "text";
  std::string station;
  std::string title;
  std::string stationList;
  std::vector<std::string> accepted;
  std::vector<std::string> carts;
};

// Options that several verbs take.
void AddDate(CLI::App* app, RawTexts* raw);
void AddDays(CLI::App* app, Options* options, const char* help);
void AddOutput(CLI::App* app, RawTexts* raw);
void AddStation(CLI::App* app, RawTexts* raw);
void AddAccept(CLI::App* app, RawTexts* raw);
// The heading of a board.
void AddTitle(CLI::App* app, RawTexts* raw);
void AddSkipMissing(CLI::App* app, Options* options);
void AddCreateMissing(CLI::App* app, Options* options);

// Settles what the texts mean. Why they mean nothing, in station text, or nothing.
std::optional<std::string> TakeTexts(const RawTexts& raw, Options& options);

}  // namespace logchecker
