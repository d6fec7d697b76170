#include "headless/CommandLine.h"

#include <CLI/CLI.hpp>  // IWYU pragma: keep
#include <algorithm>
#include <set>

#include "common/VersionData.h"
#include "headless/VerbOptions.h"
#include "headless/Verdict.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

struct VerbEntry {
  const char* name;
  Verb verb;
  void (*add)(CLI::App& app, Options& options, RawTexts& raw);
};

// In the order of the help.
constexpr VerbEntry kVerbs[] = {
    {"check", Verb::kCheck, AddCheckVerb},    {"stations", Verb::kStations, AddStationsVerb},
    {"board", Verb::kBoard, AddBoardVerb},    {"watch", Verb::kWatch, AddWatchVerb},
    {"show", Verb::kShow, AddShowVerb},       {"cart", Verb::kCart, AddCartVerb},
    {"sample", Verb::kSample, AddSampleVerb},
};

const VerbEntry* FindVerb(const std::string& name) {
  const auto* entry = std::find_if(std::begin(kVerbs), std::end(kVerbs),
                                   [&](const VerbEntry& each) { return name == each.name; });
  return entry == std::end(kVerbs) ? nullptr : entry;
}

bool BeginsWithoutCase(const std::string& text, const std::string& beginning) {
  return ToUpper(text.substr(0, beginning.size())) == beginning;
}

bool IsSettingsSwitch(const std::string& argument) {
  return BeginsWithoutCase(argument, "/LI:") || BeginsWithoutCase(argument, "/PLAYERS=");
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
  for (const VerbEntry& entry : kVerbs) entry.add(app, options, raw);
}

std::vector<std::string> WithoutSettingsSwitches(std::vector<std::string> arguments) {
  arguments.erase(std::remove_if(arguments.begin(), arguments.end(), IsSettingsSwitch),
                  arguments.end());
  return arguments;
}

// CLI11 wants the verb named; "check" may be left out.
std::vector<std::string> WithVerb(std::vector<std::string> result) {
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
  const bool hasVerb = place < result.size() && FindVerb(result[place]) != nullptr;
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

// Adds the names of the options that take a value, those of the verbs among them.
void AddNamesWithValue(CLI::App& app, std::set<std::string>* names) {
  for (const CLI::Option* option : app.get_options()) {
    if (option->get_items_expected_max() == 0) continue;
    for (const std::string& name : option->get_lnames()) names->insert("--" + name);
  }
  for (CLI::App* verb : app.get_subcommands({})) AddNamesWithValue(*verb, names);
}

// What is empty or lacks its value is a script's mistake, such as a variable that was never set,
// and what follows it is not to be taken for something else. A value may begin with two dashes only
// behind "=". The refusal, or nothing.
std::optional<ParsedArguments> RefuseEmptyOnes(CLI::App& app,
                                               const std::vector<std::string>& arguments) {
  std::set<std::string> withValue;
  AddNamesWithValue(app, &withValue);
  for (size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument.empty()) return Refuse("an argument is empty: \"\" (see logcheck --help)");
    const size_t equals = argument.find('=');
    if (equals + 1 == argument.size() && withValue.count(argument.substr(0, equals)) > 0) {
      return Refuse(argument.substr(0, equals) + " is empty (see logcheck --help)");
    }
    if (withValue.count(argument) == 0) continue;
    if (i + 1 == arguments.size() || arguments[i + 1].rfind("--", 0) == 0) {
      return Refuse(argument + " has no value (see logcheck --help)");
    }
    if (arguments[++i].empty()) return Refuse(argument + " is empty (see logcheck --help)");
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
  const std::vector<std::string> own = WithoutSettingsSwitches(arguments);
  if (auto refusal = RefuseEmptyOnes(app, own)) return *refusal;
  std::vector<std::string> reversed = WithVerb(own);
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
  options.verb = FindVerb(app.get_subcommands()[0]->get_name())->verb;
  if (auto refusal = TakeTexts(raw, options)) return Refuse(*refusal);
  options.wholeLine = JoinArguments(arguments);
  for (const std::string& argument : arguments) {
    if (IsSettingsSwitch(argument)) options.settingsSwitches.push_back(JoinArguments({argument}));
  }
  return {options, 0, ""};
}

}  // namespace logchecker
