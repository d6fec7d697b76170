// The options of `check`.
#include <CLI/CLI.hpp>  // IWYU pragma: keep

#include "headless/VerbOptions.h"

namespace logchecker {

void AddCheckVerb(CLI::App& app, Options& options, RawTexts& raw) {
  CLI::App* check =
      app.add_subcommand("check", "Checks a day, or several; what is done by default");
  AddDate(check, &raw);
  AddDays(check, &options, "How many days from there on");
  check->add_option("--format", raw.format, "text (for people), csv, json or html (a page)")
      ->check(CLI::IsMember({"text", "csv", "json", "html"}))
      ->option_text("FORMAT");
  AddOutput(check, &raw);
  AddStation(check, &raw);
  AddAccept(check, &raw);
  AddSkipMissing(check, &options);
  check->add_flag("--dated", options.dated,
                  "Puts the date before each row of csv, for one day too");
  AddCreateMissing(check, &options);
}

}  // namespace logchecker
