#include "headless/CommandLine.h"

#include <gtest/gtest.h>

#include "common/Dates.h"

namespace logchecker {
namespace {

using Arguments = std::vector<std::string>;

struct Accepted {
  Arguments arguments;
  Verb verb;
  const char* settings;
  ReportFormat format;
  int32_t days;
};

TEST(CommandLine, TheVerbAndItsOptionsAreTakenInAnyUsualOrder) {
  const Accepted cases[] = {
      {{}, Verb::kCheck, "", ReportFormat::kText, 1},
      {{"check"}, Verb::kCheck, "", ReportFormat::kText, 1},
      {{"--days", "7"}, Verb::kCheck, "", ReportFormat::kText, 7},
      {{"--settings", "/s"}, Verb::kCheck, "/s", ReportFormat::kText, 1},
      {{"--settings=/s", "--format", "csv"}, Verb::kCheck, "/s", ReportFormat::kCsv, 1},
      {{"check", "--settings", "/s", "--format=json"}, Verb::kCheck, "/s", ReportFormat::kJson, 1},
      {{"--settings", "check", "check"}, Verb::kCheck, "check", ReportFormat::kText, 1},
      {{"--settings", "/s", "show", "--split", "3"}, Verb::kShow, "/s", ReportFormat::kText, 1},
      {{"show", "--split", "3", "--settings", "/s"}, Verb::kShow, "/s", ReportFormat::kText, 1},
      {{"cart", "1", "2"}, Verb::kCart, "", ReportFormat::kText, 1},
      {{"sample", "/f", "--days", "30"}, Verb::kSample, "", ReportFormat::kText, 30},
      {{"/LI:OTHER.INI", "check"}, Verb::kCheck, "", ReportFormat::kText, 1},
      {{"/players=2"}, Verb::kCheck, "", ReportFormat::kText, 1},
  };
  for (const Accepted& row : cases) {
    const ParsedArguments parsed = ParseArguments(row.arguments);
    ASSERT_TRUE(parsed.options) << parsed.message;
    EXPECT_EQ(row.verb, parsed.options->verb);
    EXPECT_EQ(row.settings, parsed.options->settingsFolder);
    EXPECT_EQ(row.format, parsed.options->format);
    EXPECT_EQ(row.days, parsed.options->days);
  }
}

TEST(CommandLine, WhatIsEmptyOrLacksItsValueIsRefusedByItsName) {
  struct Case {
    Arguments arguments;
    const char* message;
  };
  const Case cases[] = {
      {{""}, "an argument is empty: \"\""},
      {{"", "--date", "2027-01-15"}, "an argument is empty: \"\""},
      {{"check", ""}, "an argument is empty: \"\""},
      {{"cart", "1", ""}, "an argument is empty: \"\""},
      {{"sample", ""}, "an argument is empty: \"\""},
      {{"--date", ""}, "--date is empty"},
      {{"--date", "", "--date", "2027-01-15"}, "--date is empty"},
      {{"--date="}, "--date is empty"},
      {{"--output", ""}, "--output is empty"},
      {{"--output="}, "--output is empty"},
      {{"--settings", "", "check"}, "--settings is empty"},
      {{"--settings=", "check"}, "--settings is empty"},
      {{"--station", ""}, "--station is empty"},
      {{"--accept", ""}, "--accept is empty"},
      {{"--days", ""}, "--days is empty"},
      {{"--format", ""}, "--format is empty"},
      {{"show", "--split", ""}, "--split is empty"},
      {{"sample", "/f", "--breaks", ""}, "--breaks is empty"},
      {{"--date"}, "--date has no value"},
      {{"--settings"}, "--settings has no value"},
      {{"check", "--settings"}, "--settings has no value"},
      {{"--settings", "/LI:OTHER.INI"}, "--settings has no value"},
      {{"--settings", "--date", "2027-01-15"}, "--settings has no value"},
      {{"--date", "--days", "3"}, "--date has no value"},
      {{"--station", "--format", "json"}, "--station has no value"},
      {{"--accept", "--format", "json"}, "--accept has no value"},
      {{"--output", "--date", "2027-01-15"}, "--output has no value"},
      {{"show", "--split"}, "--split has no value"},
      {{"sample", "/f", "--splits", "--breaks", "3"}, "--splits has no value"},
  };
  for (const Case& row : cases) {
    const ParsedArguments parsed = ParseArguments(row.arguments);
    EXPECT_FALSE(parsed.options) << row.message;
    EXPECT_EQ(2, parsed.exitCode);
    EXPECT_EQ(std::string(row.message) + " (see logcheck --help)", parsed.message);
  }
}

TEST(CommandLine, AValueThatLooksLikeAnOptionStandsBehindAnEqualsSign) {
  const ParsedArguments parsed = ParseArguments({"--station=--north", "--output=--date"});
  ASSERT_TRUE(parsed.options) << parsed.message;
  EXPECT_EQ("--north", parsed.options->station);
  EXPECT_EQ("--date", parsed.options->output);
}

TEST(CommandLine, WhatMakesNoSenseIsRefusedWithOneLineAndExitCodeTwo) {
  const Arguments cases[] = {
      {"--date", "2026-13-01"},
      {"--date", "2026-02-30"},
      {"--date", "26-02-03"},
      {"--date", "2026-2-3"},
      {"--date", "0099-01-01"},
      {"--date", "tomorrow"},
      {"--days", "0"},
      {"--days", "3661"},
      {"--days", "x"},
      {"--format", "xml"},
      {"--nonsense"},
      {"check", "extra"},
      {"show"},
      {"show", "--split", "0"},
      {"show", "--split", "11"},
      {"cart"},
      {"cart", "12x"},
      {"cart", "2147483648"},
      {"cart", ""},
      {"sample"},
      {"sample", "/f", "--splits", "11"},
      {"sample", "/f", "--breaks", "1441"},
      {"sample", "/f", "--breaks", "0"},
      {"sample", "/f", "--adverts", "0"},
      {"sample", "/f", "--adverts", "101"},
      {"sample", "/f", "--splits", "0"},
      {"sample", "/f", "--splits", "11"},
      {"--settings"},
      {"--output", "\xE6\x9D\xB1.csv", "--create-missing", "x"},
  };
  for (const Arguments& arguments : cases) {
    const ParsedArguments parsed = ParseArguments(arguments);
    EXPECT_FALSE(parsed.options) << arguments.back();
    EXPECT_EQ(2, parsed.exitCode) << arguments.back();
    EXPECT_FALSE(parsed.message.empty()) << arguments.back();
  }
}

TEST(CommandLine, HelpAndVersionEndWithSuccess) {
  for (const Arguments& arguments :
       {Arguments{"--help"}, Arguments{"-h"}, Arguments{"--version"}, Arguments{"check", "--help"},
        Arguments{"--settings", "/s", "sample", "--help"}}) {
    const ParsedArguments parsed = ParseArguments(arguments);
    EXPECT_FALSE(parsed.options);
    EXPECT_EQ(0, parsed.exitCode) << parsed.message;
    EXPECT_NE(std::string::npos, parsed.message.find("logcheck"));
  }
}

TEST(CommandLine, TheDateIsADayNumber) {
  const ParsedArguments parsed = ParseArguments({"--date", "2000-01-01"});
  ASSERT_TRUE(parsed.options);
  EXPECT_EQ(36526, parsed.options->day);
  EXPECT_FALSE(ParseArguments({}).options->day);
}

TEST(CommandLine, DaysBeyondTheLastDateAreRefused) {
  for (const char* verb : {"check", "sample"}) {
    std::vector<std::string> arguments = {verb, "--date", "9999-12-31", "--days", "1"};
    if (verb == std::string("sample")) arguments.emplace_back("folder");
    EXPECT_TRUE(ParseArguments(arguments).options) << verb;
    arguments[4] = "2";
    const ParsedArguments refused = ParseArguments(arguments);
    EXPECT_FALSE(refused.options) << verb;
    EXPECT_EQ(2, refused.exitCode);
    EXPECT_EQ("--days 2 goes beyond 9999-12-31", refused.message);
  }
}

TEST(CommandLine, TheWholeLineIsKeptForTheSettingsSwitches) {
  const ParsedArguments parsed = ParseArguments({"check", "/LI:ABC.INI", "--days", "2"});
  ASSERT_TRUE(parsed.options);
  EXPECT_EQ("check /LI:ABC.INI --days 2", parsed.options->wholeLine);
}

TEST(CommandLine, CartNumbersMayBeAnyOf32Bits) {
  const ParsedArguments parsed = ParseArguments({"cart", "0", "2147483647"});
  ASSERT_TRUE(parsed.options) << parsed.message;
  EXPECT_EQ((std::vector<int32_t>{0, 2147483647}), parsed.options->carts);
}

TEST(CommandLine, SampleSizesAreNotedOnlyWhenGiven) {
  EXPECT_FALSE(ParseArguments({"sample", "f"}).options->sampleSizes.AnyGiven());
  const ParsedArguments parsed = ParseArguments({"sample", "f", "--breaks", "1440"});
  EXPECT_TRUE(parsed.options->sampleSizes.AnyGiven());
  EXPECT_EQ(1440, parsed.options->sampleSizes.breaks);
  const ParsedArguments most =
      ParseArguments({"sample", "f", "--splits", "10", "--adverts", "100"});
  EXPECT_EQ(10, most.options->sampleSizes.splits);
  EXPECT_EQ(100, most.options->sampleSizes.adverts);
  const ParsedArguments least =
      ParseArguments({"sample", "f", "--splits", "1", "--breaks", "1", "--adverts", "1"});
  EXPECT_EQ(1, least.options->sampleSizes.splits);
  EXPECT_EQ(1, least.options->sampleSizes.breaks);
  EXPECT_EQ(1, least.options->sampleSizes.adverts);
}

TEST(CommandLine, APageIsAFormatOfTheCheck) {
  const ParsedArguments parsed = ParseArguments({"--format", "html"});
  ASSERT_TRUE(parsed.options);
  EXPECT_EQ(ReportFormat::kHtml, parsed.options->format);
}

TEST(CommandLine, TheSamplesMistakesAreNotedOnlyWhenGiven) {
  const ParsedArguments plain = ParseArguments({"sample", "x"});
  ASSERT_TRUE(plain.options);
  EXPECT_FALSE(plain.options->sampleMistakes);
  EXPECT_EQ(0, plain.options->sampleSeed);
  EXPECT_EQ(0, plain.options->sampleMissingDays);
  const ParsedArguments given = ParseArguments(
      {"sample", "x", "--mistakes", "0", "--seed", "9", "--missing-days", "2", "--days", "3"});
  ASSERT_TRUE(given.options);
  EXPECT_EQ(0, given.options->sampleMistakes);
  EXPECT_EQ(9, given.options->sampleSeed);
  EXPECT_EQ(2, given.options->sampleMissingDays);
  EXPECT_FALSE(ParseArguments({"sample", "x", "--mistakes", "1441"}).options);
  EXPECT_FALSE(ParseArguments({"sample", "x", "--seed", "-1"}).options);
}

TEST(CommandLine, AWatchHasAnIntervalAndACommand) {
  const ParsedArguments plain = ParseArguments({"watch"});
  ASSERT_TRUE(plain.options);
  EXPECT_EQ(Verb::kWatch, plain.options->verb);
  EXPECT_EQ(10, plain.options->every);
  EXPECT_EQ("", plain.options->run);
  const ParsedArguments whole = ParseArguments({"watch", "--every", "60", "--days", "3", "--format",
                                                "html", "--run", "mail -s x y", "--skip-missing"});
  ASSERT_TRUE(whole.options);
  EXPECT_EQ(60, whole.options->every);
  EXPECT_EQ(3, whole.options->days);
  EXPECT_EQ(ReportFormat::kHtml, whole.options->format);
  EXPECT_EQ("mail -s x y", whole.options->run);
  for (const std::vector<std::string>& wrong : {std::vector<std::string>{"watch", "--every", "0"},
                                                {"watch", "--run", ""},
                                                {"watch", "--format", "csv"},
                                                {"watch", "--date", "2027-01-15"}}) {
    EXPECT_FALSE(ParseArguments(wrong).options) << wrong[1];
  }
}

}  // namespace
}  // namespace logchecker
