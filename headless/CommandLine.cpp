#include "headless/CommandLine.h"

#include <CLI/CLI.hpp>  // IWYU pragma: keep
#include <algorithm>
#include <array>
#include <charconv>

#include "common/Dates.h"
#include "common/GeneralSettings.h"
#include "common/VersionData.h"
#include "headless/Logcheck.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr int32_t kMostDays = 3660;
constexpr std::array<const char*, 4> kVerbs = {"check", "show", "cart", "sample"};

bool BeginsWithoutCase(const std::string& text, const std::string& beginning) {
  return ToUpper(text.substr(0, beginning.size())) == beginning;
}

bool IsSettingsSwitch(const std::string& argument) {
  return BeginsWithoutCase(argument, "/LI:") || BeginsWithoutCase(argument, "/PLAYERS=");
}

bool ReadNumber(std::string_view text, int32_t* number) {
  const auto result = std::from_chars(text.data(), text.data() + text.size(), *number);
  return !text.empty() && result.ec == std::errc() && result.ptr == text.data() + text.size();
}

// YYYY-MM-DD as a day number.
std::optional<int32_t> ReadDate(std::string_view text) {
  constexpr size_t kDateLength = 10;
  int32_t year = 0;
  int32_t month = 0;
  int32_t day = 0;
  const bool shaped = text.size() == kDateLength && text[4] == '-' && text[7] == '-' &&
                      ReadNumber(text.substr(0, 4), &year) &&
                      ReadNumber(text.substr(5, 2), &month) && ReadNumber(text.substr(8), &day);
  const std::chrono::year_month_day date{std::chrono::year{year},
                                         std::chrono::month{static_cast<unsigned>(month)},
                                         std::chrono::day{static_cast<unsigned>(day)}};
  if (!shaped || !date.ok()) return std::nullopt;
  const int32_t number = DayOfDate(date);
  return number < kFirstDay ? std::nullopt : std::optional(number);
}

// The texts that CLI11 fills; what they mean is settled afterwards.
struct RawTexts {
  std::string date;
  std::string output;
  std::string format = "text";
  std::vector<std::string> carts;
};

void AddDate(CLI::App* app, RawTexts* raw) {
  app->add_option("--date", raw->date, "The day, as YYYY-MM-DD; tomorrow without it")
      ->option_text("YYYY-MM-DD");
}

void AddDays(CLI::App* app, Options* options, const char* help) {
  app->add_option("--days", options->days, help)->check(CLI::Range(1, kMostDays))->option_text("N");
}

void AddSampleSize(CLI::App* app, const char* name, std::optional<int32_t>* size, int32_t most,
                   const char* help) {
  app->add_option(name, *size, help)->check(CLI::Range(1, most))->option_text("N");
}

void Describe(CLI::App& app, Options& options, RawTexts& raw) {
  // A folder may begin with "/", and the settings' own switches are taken out before.
  app.allow_windows_style_options(false);
  app.description("Checks the advert breaks of a day across all splits of a station.");
  app.set_version_flag("--version", std::string("logcheck ") + kVersion);
  app.add_option("--settings", options.settingsFolder,
                 "The folder of VELKLT.INI and VELMAR.INI; the user's own without it")
      ->option_text("FOLDER");
  app.require_subcommand(1);
  app.fallthrough();

  CLI::App* check =
      app.add_subcommand("check", "Checks a day, or several; what is done by default");
  AddDate(check, &raw);
  AddDays(check, &options, "How many days from there on");
  check->add_option("--format", raw.format, "text (for people), csv or json")
      ->check(CLI::IsMember({"text", "csv", "json"}))
      ->option_text("FORMAT");
  check->add_option("--output", raw.output, "Writes to FILE, whole or not at all")
      ->option_text("FILE");
  check->add_flag("--create-missing", options.createMissing,
                  "Makes list files of the cart store that are missing");

  CLI::App* show = app.add_subcommand("show", "Prints one split's grid, tab separated");
  show->add_option("--split", options.split, "The split's number, from 1 to 10")
      ->check(CLI::Range(1, static_cast<int>(kMostSplits)))
      ->required()
      ->option_text("N");
  AddDate(show, &raw);

  CLI::App* cart = app.add_subcommand("cart", "Prints cart records, a line each");
  cart->add_option("number", raw.carts, "Cart numbers")->required()->option_text("NUMBER...");

  CLI::App* sample = app.add_subcommand("sample", "Writes a made-up station to try the program on");
  sample->add_option("folder", options.sampleFolder, "The folder to make")
      ->required()
      ->option_text("FOLDER");
  AddDate(sample, &raw);
  AddDays(sample, &options, "Logs for how many days");
  AddSampleSize(sample, "--splits", &options.sampleSizes.splits, kMostSplits, "Splits, 1 to 10");
  AddSampleSize(sample, "--breaks", &options.sampleSizes.breaks, 1440, "Breaks a day");
  AddSampleSize(sample, "--adverts", &options.sampleSizes.adverts, 100, "Adverts a break");
}

// CLI11 wants the verb named; "check" may be left out.
std::vector<std::string> WithVerb(const std::vector<std::string>& arguments) {
  std::vector<std::string> result;
  for (const std::string& argument : arguments) {
    if (!IsSettingsSwitch(argument)) result.push_back(argument);
  }
  size_t place = 0;
  while (place < result.size()) {
    const std::string& argument = result[place];
    if (argument == "--settings") {
      place += 2;
    } else if (argument.rfind("--settings=", 0) == 0) {
      ++place;
    } else {
      break;
    }
  }
  place = std::min(place, result.size());
  const bool wantsHelp =
      place < result.size() &&
      (result[place] == "--help" || result[place] == "-h" || result[place] == "--version");
  const bool hasVerb = place < result.size() &&
                       std::find(kVerbs.begin(), kVerbs.end(), result[place]) != kVerbs.end();
  if (!wantsHelp && !hasVerb) result.insert(result.begin() + static_cast<long>(place), "check");
  return result;
}

std::string JoinArguments(const std::vector<std::string>& arguments) {
  std::string line;
  for (const std::string& argument : arguments) {
    std::string text;
    FromArgument(argument, &text);
    if (!line.empty()) line += ' ';
    line += text;
  }
  return line;
}

ParsedArguments Refuse(const std::string& message) { return {std::nullopt, kTrouble, message}; }

// An argument as the person typed it, for a message.
std::string Quoted(const std::string& argument) {
  std::string text;
  FromArgument(argument, &text);
  return '"' + text + '"';
}

// Settles what the texts mean; the refusal otherwise.
std::optional<ParsedArguments> TakeTexts(const RawTexts& raw, Options& options) {
  if (!raw.date.empty()) {
    options.day = ReadDate(raw.date);
    if (!options.day) return Refuse(Quoted(raw.date) + " is no date of the form YYYY-MM-DD");
  }
  const int32_t first = options.day.value_or(Today() + 1);
  if (first > kLastDay - (options.days - 1)) {
    return Refuse("--days " + std::to_string(options.days) + " goes beyond 9999-12-31");
  }
  options.format = raw.format == "csv"    ? ReportFormat::kCsv
                   : raw.format == "json" ? ReportFormat::kJson
                                          : ReportFormat::kText;
  if (!FromArgument(raw.output, &options.output)) {
    return Refuse("the name of the output file has characters that the code page can't hold");
  }
  for (const std::string& text : raw.carts) {
    int32_t number = 0;
    if (!ReadNumber(text, &number)) return Refuse(Quoted(text) + " is no cart number");
    options.carts.push_back(number);
  }
  return std::nullopt;
}

}  // namespace

ParsedArguments ParseArguments(const std::vector<std::string>& arguments) {
  Options options;
  RawTexts raw;
  CLI::App app;
  app.name("logcheck");
  Describe(app, options, raw);
  std::vector<std::string> reversed = WithVerb(arguments);
  std::reverse(reversed.begin(), reversed.end());
  try {
    app.parse(reversed);
  } catch (const CLI::CallForVersion&) {
    return {std::nullopt, 0, app.version() + "\n"};
  } catch (const CLI::CallForHelp&) {
    const auto chosen = app.get_subcommands();
    return {std::nullopt, 0, chosen.empty() ? app.help() : chosen[0]->help("logcheck")};
  } catch (const CLI::ParseError& error) {
    std::string text;
    FromArgument(error.what(), &text);
    return Refuse(text + " (see logcheck --help)");
  }
  const std::string verb = app.get_subcommands()[0]->get_name();
  options.verb = verb == "show"     ? Verb::kShow
                 : verb == "cart"   ? Verb::kCart
                 : verb == "sample" ? Verb::kSample
                                    : Verb::kCheck;
  if (auto refusal = TakeTexts(raw, options)) return *refusal;
  options.wholeLine = JoinArguments(arguments);
  return {options, 0, ""};
}

}  // namespace logchecker
