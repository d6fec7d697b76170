#include "headless/OptionTexts.h"

#include <CLI/CLI.hpp>  // IWYU pragma: keep
#include <algorithm>
#include <array>

#include "common/Dates.h"
#include "headless/IsoDates.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr int32_t kMostDays = 3660;

// The kinds that a person can take out of the code, by their names.
constexpr std::array<WarningKind, 4> kAcceptable = {WarningKind::kSilent, WarningKind::kMidnight,
                                                    WarningKind::kPassedOver,
                                                    WarningKind::kMissingLog};

std::vector<std::string> NamesOfAcceptable() {
  std::vector<std::string> names;
  names.reserve(kAcceptable.size());
  for (const WarningKind kind : kAcceptable) names.emplace_back(NameOf(kind));
  return names;
}

// An argument as the person typed it, for a message.
std::string Quoted(const std::string& argument) {
  std::string text;
  FromArgument(argument, &text);
  return '"' + text + '"';
}

std::optional<std::string> TakeDays(const RawTexts& raw, Options& options) {
  if (!raw.date.empty()) {
    options.day = ReadIsoDate(raw.date);
    if (!options.day) return Quoted(raw.date) + " is no date of the form YYYY-MM-DD";
  }
  const int32_t first = options.day.value_or(Today() + 1);
  if (first <= kLastDay - (options.days - 1)) return std::nullopt;
  return "--days " + std::to_string(options.days) + " goes beyond 9999-12-31";
}

}  // namespace

void AddDate(CLI::App* app, RawTexts* raw) {
  app->add_option("--date", raw->date, "The day, as YYYY-MM-DD; tomorrow without it")
      ->option_text("YYYY-MM-DD");
}

void AddDays(CLI::App* app, Options* options, const char* help) {
  app->add_option("--days", options->days, help)->check(CLI::Range(1, kMostDays))->option_text("N");
}

void AddOutput(CLI::App* app, RawTexts* raw) {
  app->add_option("--output", raw->output, "Writes to FILE, whole or not at all")
      ->option_text("FILE");
}

void AddStation(CLI::App* app, RawTexts* raw) {
  app->add_option("--station", raw->station,
                  "The station's name; that of the settings folder without it")
      ->option_text("NAME");
}

void AddSkipMissing(CLI::App* app, Options* options) {
  app->add_flag("--skip-missing", options->skipMissing,
                "Leaves out days for which no split has a log yet");
}

void AddCreateMissing(CLI::App* app, Options* options) {
  app->add_flag("--create-missing", options->createMissing,
                "Makes list files of the cart store that are missing");
}

void AddAccept(CLI::App* app, RawTexts* raw) {
  app->add_option("--accept", raw->accepted,
                  "Takes silent, midnight, passed-over or missing-log out of exit code 1")
      ->check(CLI::IsMember(NamesOfAcceptable()))
      ->take_all()
      ->expected(1)
      ->option_text("KIND");
}

void AddTitle(CLI::App* app, RawTexts* raw) {
  app->add_option("--title", raw->title, "The heading of a board")->option_text("TEXT");
}

std::optional<std::string> TakeTexts(const RawTexts& raw, Options& options) {
  if (auto refusal = TakeDays(raw, options)) return refusal;
  options.format = raw.format == "csv"    ? ReportFormat::kCsv
                   : raw.format == "json" ? ReportFormat::kJson
                   : raw.format == "html" ? ReportFormat::kHtml
                                          : ReportFormat::kText;
  if (!FromArgument(raw.output, &options.output)) {
    return "the name of the output file has characters that the code page can't hold";
  }
  if (!FromArgument(raw.station, &options.station)) {
    return "the station's name has characters that the code page can't hold";
  }
  if (!FromArgument(raw.title, &options.title)) {
    return "the title has characters that the code page can't hold";
  }
  if (!FromArgument(raw.stationList, &options.stationList)) {
    return "the list's name has characters that the code page can't hold";
  }
  if (options.verb == Verb::kStations && !options.settingsFolder.empty()) {
    return "--settings names one station's folder, and the list has those of all";
  }
  for (const WarningKind kind : kAcceptable) {
    const bool named =
        std::find(raw.accepted.begin(), raw.accepted.end(), NameOf(kind)) != raw.accepted.end();
    if (named) options.accepted.push_back(kind);
  }
  for (const std::string& text : raw.carts) {
    const std::optional<int32_t> number = ReadNumber(text);
    if (!number) return Quoted(text) + " is no cart number";
    options.carts.push_back(*number);
  }
  return std::nullopt;
}

}  // namespace logchecker
