// The options of `board`.
#include <CLI/CLI.hpp>  // IWYU pragma: keep

#include "headless/VerbOptions.h"

namespace logchecker {

void AddBoardVerb(CLI::App& app, Options& options, RawTexts& raw) {
  CLI::App* board =
      app.add_subcommand("board", "Writes many stations and days as one page, from JSON reports");
  board->add_option("report", options.reports, "What --format json of check or stations wrote")
      ->required()
      ->option_text("REPORT.json...");
  AddOutput(board, &raw);
  AddTitle(board, &raw);
  constexpr int32_t kMostHours = 87600;
  board
      ->add_option("--stale", options.staleHours,
                   "Calls a report too old that was checked more than HOURS ago")
      ->check(CLI::Range(1, kMostHours))
      ->option_text("HOURS");
}

}  // namespace logchecker
