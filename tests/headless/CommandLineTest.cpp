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

}  // namespace
}  // namespace logchecker
