// The options of `watch`.
#include <CLI/CLI.hpp>  // IWYU pragma: keep

#include "headless/VerbOptions.h"

namespace logchecker {

namespace {

constexpr int32_t kLongestInterval = 86400;

}  // namespace

void AddWatchVerb(CLI::App& app, Options& options, RawTexts& raw) {
  CLI::App* watch =
      app.add_subcommand("watch", "Checks from tomorrow on, and again when something has changed");
  watch->add_option("--every", options.every, "How often to look, in seconds; 10 without it")
      ->check(CLI::Range(1, kLongestInterval))
      ->option_text("SECONDS");
  AddDays(watch, &options, "How many days from tomorrow on");
  watch->add_option("--format", raw.format, "text (for people), json or html")
      ->check(CLI::IsMember({"text", "json", "html"}))
      ->option_text("FORMAT");
  AddOutput(watch, &raw);
  watch->add_option("--run", options.run, "Gives each report that is new to this command")
      ->option_text("COMMAND");
  AddStation(watch, &raw);
  AddAccept(watch, &raw);
  AddSkipMissing(watch, &options);
  AddCreateMissing(watch, &options);
}

}  // namespace logchecker
