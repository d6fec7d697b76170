// What a report leaves behind for whoever finds it, as files of the real program.
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <sstream>

#include "common/PathText.h"
#include "tests/support/RunProgram.h"

namespace logchecker {
namespace {

using Json = nlohmann::json;

constexpr char kDate[] = " --date 2026-11-21";

class ReportFilesTest : public ::testing::Test {
 protected:
  ReportFilesTest() {
    EXPECT_EQ(0, Run("sample " + Quoted("North 7") + " --days 2" + kDate).exitCode);
  }
  std::string Quoted(const std::string& name) const { return '"' + folder_.Path(name) + '"'; }
  ProgramResult Run(const std::string& arguments) const {
    return RunProgram("logcheck", arguments, folder_);
  }
  ProgramResult Check(const std::string& arguments) const {
    return Run("--settings " + Quoted("North 7") + " " + arguments);
  }
  // Checks the day into a file, and gives what the file holds then.
  std::string Report(const std::string& arguments, int exitCode) const {
    folder_.WriteFile("report", "yesterday's");
    const ProgramResult result = Check("--output " + Quoted("report") + " " + arguments);
    EXPECT_EQ(exitCode, result.exitCode) << result.errors;
    EXPECT_EQ("", result.output);
    return folder_.ReadFile("report");
  }
  Json JsonOf(const std::string& arguments, int exitCode) const {
    return Json::parse(Report("--format json " + arguments, exitCode));
  }
  void RemoveLogs() const { std::filesystem::remove_all(folder_.Path("North 7") + "/logs"); }
  void RemoveSettings() const { std::filesystem::remove(folder_.Path("North 7") + "/VELKLT.INI"); }

  TempFolder folder_;
};

TEST_F(ReportFilesTest, ADayThatCannotBeCheckedReplacesTheReportOfTheDayBefore) {
  const std::string csv = Report(std::string("--format csv") + kDate, 1);
  const std::string headings = csv.substr(0, csv.find('\n') + 1);
  ASSERT_EQ(0U, headings.find("\"Time\",\"Larkfield\","));
  RemoveLogs();
  const std::string text = Report(kDate, 2);
  EXPECT_NE(std::string::npos, text.find("not checked: no active split has a log")) << text;
  EXPECT_EQ(headings, Report(std::string("--format csv") + kDate, 2));
  const Json day = JsonOf(kDate, 2)["days"].at(0);
  EXPECT_EQ(2, day["code"]);
  EXPECT_TRUE(day["noLogYet"]);
  EXPECT_EQ(0U, day["trouble"].get<std::string>().find("no active split has a log"));
}

TEST_F(ReportFilesTest, AStationThatCannotBeCheckedReplacesTheReportWithEveryDayThatWasAskedFor) {
  RemoveSettings();
  const std::string text = Report(std::string("--days 2") + kDate, 2);
  EXPECT_NE(std::string::npos,
            text.find("Saturday 2026-11-21: not checked: there are no settings"));
  EXPECT_NE(std::string::npos, text.find("Sunday 2026-11-22: not checked: there are no settings"));
  EXPECT_EQ("\"Time\"\r\n", Report(std::string("--format csv") + kDate, 2));
  const Json json = JsonOf(std::string("--days 2") + kDate, 2);
  ASSERT_EQ(2U, json["days"].size());
  EXPECT_FALSE(json["days"][1]["noLogYet"]);
}

TEST_F(ReportFilesTest, TheStationIsThatOfTheSettingsFolderUnlessItIsNamed) {
  EXPECT_EQ(0U, Report(kDate, 1).find("Station: North 7\n"));
  EXPECT_EQ(
      0U, Report(std::string("--station \"West Coast\"") + kDate, 1).find("Station: West Coast\n"));
  const Json json = JsonOf(std::string("--station \"West Coast\"") + kDate, 1);
  EXPECT_EQ(1, json["schema"]);
  EXPECT_EQ("West Coast", json["station"]);
  EXPECT_EQ(ShownPath(folder_.Path("North 7")), json["settings"]);
  EXPECT_EQ(20U, json["checkedAt"].get<std::string>().size());
  EXPECT_EQ(1, json["code"]);
}

TEST_F(ReportFilesTest, EveryFormatTellsTheWarnings) {
  std::filesystem::remove_all(folder_.Path("North 7") + "/logs/Larkfield");
  const std::string silent = "split 4 \"Coast\": 1 advert without audio at 16:01: cart 3950";
  const std::string missing = "no log for 2026-11-21: split 1 \"Larkfield\"";
  const Json warnings = JsonOf(kDate, 1)["days"][0]["warnings"];
  ASSERT_EQ(2U, warnings.size());
  EXPECT_EQ("missing-log", warnings[0]["kind"]);
  EXPECT_EQ(1, warnings[0]["split"]);
  EXPECT_EQ(0U, warnings[0]["text"].get<std::string>().find(missing));
  EXPECT_EQ("silent", warnings[1]["kind"]);
  EXPECT_EQ(4, warnings[1]["split"]);
  EXPECT_EQ(0U, warnings[1]["text"].get<std::string>().find(silent));
  EXPECT_NE(std::string::npos, Report(kDate, 1).find("\nWarnings\n  " + missing));
  const std::string errors = Check(std::string("--format csv") + kDate).errors;
  EXPECT_NE(std::string::npos, errors.find("logcheck: warning: " + silent)) << errors;
  EXPECT_NE(std::string::npos, errors.find("logcheck: warning: " + missing)) << errors;
}

TEST_F(ReportFilesTest, TheCountsAreThoseOfTheSplits) {
  const Json day = JsonOf(kDate, 1)["days"][0];
  int64_t breaks = 0;
  int64_t adverts = 0;
  int64_t withoutAudio = 0;
  for (const Json& split : day["splits"]) {
    breaks += split["breaks"].get<int64_t>();
    adverts += split["adverts"].get<int64_t>();
    withoutAudio += split["withoutAudio"].get<int64_t>();
  }
  EXPECT_GT(adverts, breaks);
  EXPECT_EQ(1, withoutAudio);
  EXPECT_EQ((Json{{"breaks", breaks},
                  {"adverts", adverts},
                  {"withoutAudio", withoutAudio},
                  {"mismatches", day["mismatches"].size()},
                  {"warnings", day["warnings"].size()}}),
            day["counts"]);
}

// The lengths of a split's adverts make up the break's, and show which one is silent.
TEST_F(ReportFilesTest, AMismatchBringsTheAdvertsOfEachSplit) {
  const Json mismatches = JsonOf(kDate, 1)["days"][0]["mismatches"];
  const Json& silent = mismatches.at(2);
  ASSERT_EQ("16:01", silent["time"]);
  for (size_t split = 0; split < 5; ++split) {
    double sum = 0;
    int silentAdverts = 0;
    for (const Json& advert : silent["adverts"][split]) {
      sum += advert["length"].get<double>();
      silentAdverts += advert["audio"].get<bool>() ? 0 : 1;
    }
    EXPECT_NEAR(silent["lengths"][split]["seconds"].get<double>(), sum, 0.01);
    EXPECT_EQ(split == 3 ? 1 : 0, silentAdverts) << split;
  }
  EXPECT_TRUE(mismatches.at(0)["adverts"].at(0).is_null()) << "no break there";
  EXPECT_TRUE(mismatches.at(0)["lengths"].at(0).is_null());
}

TEST_F(ReportFilesTest, ADayThatBeginsAtMidnightEverywhereHasNoTimeAndSaysWhy) {
  std::string log;
  for (const char* time : {"00:00:00", "10:00:00"}) {
    for (const char* chain : {"LRK", "EST", "WST", "CST", "HIL"}) {
      log += std::string(time) + "|" + chain + "  00001001 ONE\r\n";
    }
    log += "\r\n";
  }
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(folder_.Path("North 7") + "/logs")) {
    if (!entry.is_regular_file()) continue;
    folder_.WriteFile(std::filesystem::relative(entry.path(), folder_.Path()).string(), log);
  }
  const Json day = JsonOf(
      std::string("--accept midnight --accept passed-over --accept silent") + kDate, 1)["days"][0];
  ASSERT_EQ(1U, day["mismatches"].size()) << day.dump(1);
  const Json& row = day["mismatches"][0];
  EXPECT_TRUE(row["time"].is_null());
  EXPECT_TRUE(row["seconds"].is_null());
  EXPECT_EQ(0U, row["reason"].get<std::string>().find("every split begins at 00:00, or at"));
}

TEST_F(ReportFilesTest, WhatIsAcceptedIsReportedAndCountsForNothing) {
  ASSERT_EQ(0, Run("sample " + Quoted("sound") + " --breaks 10" + kDate).exitCode);
  std::filesystem::remove_all(folder_.Path("sound") + "/logs/Larkfield");
  const std::string check = "--settings " + Quoted("sound") + kDate;
  const ProgramResult refused = Run(check + " --format json");
  const ProgramResult accepted = Run(check + " --format json --accept missing-log");
  EXPECT_EQ(1, refused.exitCode);
  EXPECT_EQ(0, accepted.exitCode);
  const Json json = Json::parse(accepted.output);
  EXPECT_EQ(0, json["code"]);
  EXPECT_EQ("missing-log", json["days"][0]["warnings"].at(0)["kind"]);
  EXPECT_EQ(refused.errors, accepted.errors);
  EXPECT_EQ(1, Run(check + " --accept silent --accept midnight").exitCode);
}

TEST_F(ReportFilesTest, TheDateColumnStandsInOneDaysCsvWhereItIsAskedFor) {
  const std::string plain = Report(std::string("--format csv") + kDate, 1);
  const std::string dated = Report(std::string("--format csv --dated") + kDate, 1);
  std::string expected;
  std::istringstream lines(plain);
  for (std::string line; std::getline(lines, line);) {
    expected += (expected.empty() ? "\"Date\"," : "\"2026-11-21\",") + line + "\n";
  }
  EXPECT_EQ(expected, dated);
}

TEST_F(ReportFilesTest, DaysWithoutALogAreLeftOutUnlessNoDayHasOne) {
  const std::string three = "--days 3" + std::string(kDate);
  EXPECT_EQ(3U, JsonOf(three, 2)["days"].size());
  EXPECT_EQ(2U, JsonOf(three + " --skip-missing", 1)["days"].size());
  EXPECT_EQ("", Check(three + " --skip-missing --format json").errors);
  RemoveLogs();
  EXPECT_EQ(3U, JsonOf(three + " --skip-missing", 2)["days"].size());
}

}  // namespace
}  // namespace logchecker
