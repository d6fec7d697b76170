// The options of `show`, `cart` and `sample`.
#include <CLI/CLI.hpp>  // IWYU pragma: keep

#include "common/GeneralSettings.h"
#include "headless/VerbOptions.h"

namespace logchecker {

namespace {

void AddSampleSize(CLI::App* app, const char* name, std::optional<int32_t>* size, int32_t most,
                   const char* help) {
  app->add_option(name, *size, help)->check(CLI::Range(1, most))->option_text("N");
}

}  // namespace

void AddShowVerb(CLI::App& app, Options& options, RawTexts& raw) {
  CLI::App* show = app.add_subcommand("show", "Prints one split's grid, tab separated");
  show->add_option("--split", options.split, "The split's number, from 1 to 10")
      ->check(CLI::Range(1, static_cast<int>(kMostSplits)))
      ->required()
      ->option_text("N");
  AddDate(show, &raw);
}

void AddCartVerb(CLI::App& app, Options& /*options*/, RawTexts& raw) {
  CLI::App* cart = app.add_subcommand("cart", "Prints cart records, a line each");
  cart->add_option("number", raw.carts, "Cart numbers")->required()->option_text("NUMBER...");
}

void AddSampleVerb(CLI::App& app, Options& options, RawTexts& raw) {
  CLI::App* sample = app.add_subcommand("sample", "Writes a made-up station to try the program on");
  sample->add_option("folder", options.sampleFolder, "The folder to make")
      ->required()
      ->option_text("FOLDER");
  AddDate(sample, &raw);
  AddDays(sample, &options, "Logs for how many days");
  AddSampleSize(sample, "--splits", &options.sampleSizes.splits, kMostSplits, "Splits, 1 to 10");
  AddSampleSize(sample, "--breaks", &options.sampleSizes.breaks, 1440, "Breaks a day");
  AddSampleSize(sample, "--adverts", &options.sampleSizes.adverts, 100, "Adverts a break");
  sample
      ->add_option("--mistakes", options.sampleMistakes,
                   "Mistakes a day, drawn for each; a fixed few without it")
      ->check(CLI::Range(0, 1440))
      ->option_text("N");
  sample->add_option("--seed", options.sampleSeed, "Draws other adverts and mistakes")
      ->check(CLI::Range(0, 1000000))
      ->option_text("N");
  sample
      ->add_option("--missing-days", options.sampleMissingDays, "Writes no log for the last N days")
      ->check(CLI::Range(0, 3660))
      ->option_text("N");
}

}  // namespace logchecker
