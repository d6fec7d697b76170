// The options of `stations`.
#include <CLI/CLI.hpp>  // IWYU pragma: keep

#include "headless/VerbOptions.h"
#include "platform/Processes.h"

namespace logchecker {

namespace {

constexpr int32_t kLongestSeconds = 86400;

std::string RefuseCsv(const std::string& format) {
  return format == "csv" ? "csv is for one station, since its columns are that station's splits"
                         : "";
}

}  // namespace

void AddStationsVerb(CLI::App& app, Options& options, RawTexts& raw) {
  CLI::App* stations = app.add_subcommand("stations", "Checks many stations, a process each");
  stations->add_option("list", raw.stationList, "A text file with a line NAME = FOLDER a station")
      ->required()
      ->option_text("LIST");
  stations->add_option("--jobs", options.jobs, "How many at once; the processors without it")
      ->check(CLI::Range(1, static_cast<int>(Processes::kMostChildren)))
      ->option_text("N");
  stations
      ->add_option("--timeout", options.timeoutSeconds,
                   "How many seconds a station may take; 600 without it")
      ->check(CLI::Range(1, kLongestSeconds))
      ->option_text("SECONDS");
  AddDate(stations, &raw);
  AddDays(stations, &options, "How many days from there on");
  stations->add_option("--format", raw.format, "text (for people), json or html (a board)")
      ->check(RefuseCsv)
      ->check(CLI::IsMember({"text", "json", "html"}))
      ->option_text("FORMAT");
  AddOutput(stations, &raw);
  AddTitle(stations, &raw);
  AddAccept(stations, &raw);
  stations->add_flag("--skip-missing", options.skipMissing,
                     "Leaves out days for which no split has a log yet");
  stations->add_flag("--create-missing", options.createMissing,
                     "Makes list files of the cart stores that are missing");
}

}  // namespace logchecker
