// Many stations, checked by the program itself.
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "headless/ReportReader.h"
#include "tests/support/RunProgram.h"

namespace logchecker {
namespace {

using Json = nlohmann::json;

constexpr char kDate[] = " --date 2027-01-15";

class StationsTest : public ::testing::Test {
 protected:
  ProgramResult Run(const std::string& arguments) const {
    return RunProgram("logcheck", arguments, folder_);
  }
  ProgramResult RunOnList(const std::string& arguments) const {
    return Run("stations \"" + folder_.Path("list.txt") + "\" " + arguments);
  }
  void WriteSample(const std::string& name, const std::string& sizes = "") const {
    ASSERT_EQ(0, Run("sample \"" + folder_.Path(name) + "\"" + kDate + sizes).exitCode);
  }
  // One that matches, one that differs, and one that isn't there.
  void WriteThree() const {
    WriteSample("good", " --breaks 10 --days 2");
    WriteSample("bad");
    folder_.WriteFile("list.txt", "Good FM = good\nBad = bad\nNowhere at all = none\n");
  }
  static std::string Line(const std::string& text, size_t number) {
    size_t at = 0;
    for (size_t i = 1; i < number; ++i) at = text.find('\n', at) + 1;
    return text.substr(at, text.find('\n', at) - at);
  }
  bool LeavesNoTemporaryFile() const {
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      const std::string name = entry.path().filename().string();
      if (name.front() == '.' || name.front() == '~') return false;
    }
    return true;
  }

  TempFolder folder_;
};

TEST_F(StationsTest, ALineAStationInTheListsOrderAndASummary) {
  WriteThree();
  const ProgramResult result = RunOnList(kDate);
  EXPECT_EQ(2, result.exitCode);
  EXPECT_EQ("Good FM         match", Line(result.output, 1));
  EXPECT_EQ("Bad             5 differ (04:01 08:01 16:01 20:01 20:02), 1 advert without audio",
            Line(result.output, 2));
  EXPECT_EQ(0U, Line(result.output, 3).find("    warning: split 4 \"Coast\": 1 advert without"));
  EXPECT_EQ(0U,
            Line(result.output, 4).find("Nowhere at all  not checked: there are no settings: "));
  EXPECT_EQ("3 stations: 1 match, 1 to mend, 1 not checked", Line(result.output, 6));
  EXPECT_EQ(0U, result.errors.find("logcheck: Nowhere at all: there are no settings: "));
  EXPECT_EQ(result.errors.size() - 1, result.errors.find('\n'));
}

TEST_F(StationsTest, TheDaysThatAreNotAsTheyShouldBeHaveLinesOfTheirOwn) {
  WriteThree();
  const ProgramResult result = RunOnList("--days 4" + std::string(kDate));
  EXPECT_EQ("Good FM         of 4 days 2 without a log yet", Line(result.output, 1));
  EXPECT_EQ("    2027-01-17 to 2027-01-18  no log yet", Line(result.output, 2));
  EXPECT_EQ("Bad             of 4 days 1 to mend, 3 without a log yet", Line(result.output, 3));
  EXPECT_EQ(0U, Line(result.output, 4).find("    2027-01-15  5 differ"));
  EXPECT_EQ("    2027-01-16 to 2027-01-18  no log yet", Line(result.output, 5));
  EXPECT_NE(std::string::npos, result.errors.find("logcheck: Good FM: no log yet (2 of 4 days)\n"));
}

TEST_F(StationsTest, TheCodeIsTheGreatestOfAll) {
  WriteThree();
  folder_.WriteFile("list.txt", "a = good\n");
  EXPECT_EQ(0, RunOnList(kDate).exitCode);
  folder_.WriteFile("list.txt", "a = good\nb = bad\nc = good");
  EXPECT_EQ(1, RunOnList(kDate).exitCode);
  EXPECT_EQ(2, RunOnList("--days 2" + std::string(kDate)).exitCode);
  EXPECT_EQ(1, RunOnList("--days 2 --skip-missing" + std::string(kDate)).exitCode);
}

TEST_F(StationsTest, AStationAllOfWhoseDaysHaveNoLogYetSaysSo) {
  WriteThree();
  folder_.WriteFile("list.txt", "a = good\n");
  const ProgramResult result = RunOnList("--days 3 --skip-missing --date 2027-02-01");
  EXPECT_EQ(2, result.exitCode);
  EXPECT_EQ("a  no log yet", Line(result.output, 1));
  EXPECT_EQ("1 station: 0 match, 1 with days that have no log yet", Line(result.output, 3));
  EXPECT_EQ("logcheck: a: no log yet\n", result.errors);
}

TEST_F(StationsTest, JsonIsTheListOfTheReportsAsTheCheckWritesThem) {
  WriteThree();
  for (const char* jobs : {" --jobs 1", " --jobs 3"}) {
    const ProgramResult result = RunOnList("--format json" + std::string(kDate) + jobs);
    EXPECT_EQ(2, result.exitCode);
    Json list = Json::parse(result.output);
    ASSERT_EQ(3U, list.size());
    const ProgramResult alone =
        Run("--settings \"" + folder_.Path("bad") + "\" --station Bad --format json" + kDate);
    Json expected = Json::parse(alone.output);
    expected["checkedAt"] = list[1]["checkedAt"];
    EXPECT_EQ(expected, list[1]);
    EXPECT_EQ("Good FM", list[0]["station"]);
    EXPECT_EQ("Nowhere at all", list[2]["station"]);
    EXPECT_EQ(2, list[2]["code"]);
    EXPECT_NE("", list[2]["days"][0]["trouble"]);
  }
}

TEST_F(StationsTest, TheOptionsOfTheCheckGoOnToEach) {
  WriteSample("a");
  folder_.WriteFile("list.txt", "a = a\n");
  std::filesystem::remove(folder_.Path("a/audio/carts 1/Carts1.lst"));
  EXPECT_EQ(2, RunOnList(kDate).exitCode);
  EXPECT_EQ(1, RunOnList("--create-missing" + std::string(kDate)).exitCode);
  WriteSample("b", " --breaks 10");
  folder_.WriteFile("list.txt", "b = b\n");
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.Path("b/logs"))) {
    if (!entry.is_regular_file()) continue;
    std::filesystem::remove(entry.path());
    break;
  }
  EXPECT_EQ(1, RunOnList(kDate).exitCode);
  const ProgramResult accepted =
      RunOnList("--accept missing-log --accept silent" + std::string(kDate));
  EXPECT_EQ(0, accepted.exitCode);
  EXPECT_NE(std::string::npos, accepted.output.find("match; accepted: 10 differ ("));
}

TEST_F(StationsTest, AListThatIsNoneIsTroubleInTheOutputToo) {
  folder_.WriteFile("list.txt", "a /srv\n");
  folder_.WriteFile("out", "yesterday");
  const std::string output = " --output \"" + folder_.Path("out") + "\"";
  const ProgramResult result = RunOnList(kDate + output);
  EXPECT_EQ(2, result.exitCode);
  EXPECT_EQ(0U, result.errors.find("logcheck: line 1 of "));
  EXPECT_EQ(0U, folder_.ReadFile("out").find("list.txt  not checked: line 1 of "));
  RunOnList("--format json" + std::string(kDate) + output);
  const Json list = Json::parse(folder_.ReadFile("out"));
  EXPECT_EQ("list.txt", list[0]["station"]);
}

TEST_F(StationsTest, TheOutputIsReplacedWhole) {
  WriteThree();
  folder_.WriteFile("out", "yesterday");
  const std::string output = " --output \"" + folder_.Path("out") + "\"";
  const ProgramResult result = RunOnList(kDate + output);
  EXPECT_EQ(2, result.exitCode);
  EXPECT_EQ("", result.output);
  EXPECT_NE(std::string::npos, folder_.ReadFile("out").find("3 stations: "));
  EXPECT_TRUE(LeavesNoTemporaryFile());
  const ProgramResult refused = RunOnList(kDate + (" --output \"" + folder_.Path("no/out") + "\""));
  EXPECT_EQ(2, refused.exitCode);
  EXPECT_NE(std::string::npos, refused.errors.find(" could not be written: "));
}

TEST_F(StationsTest, WhatMakesNoSenseForManyIsRefused) {
  const struct {
    const char* arguments;
    const char* reason;
  } cases[] = {
      {"--format csv", "csv is for one station, since its columns are that station's splits"},
      {"--settings x", "--settings names one station's folder, and the list has those of all"},
      {"--jobs 0", "not in range 1 to 256"},
      {"--jobs 257", "not in range 1 to 256"},
      {"--timeout 0", "not in range 1 to 86400"},
      {"--station x", "--station"},
  };
  for (const auto& wrong : cases) {
    const ProgramResult result = RunOnList(wrong.arguments);
    EXPECT_EQ(2, result.exitCode);
    EXPECT_NE(std::string::npos, result.errors.find(wrong.reason)) << result.errors;
  }
  EXPECT_EQ(2, Run("stations").exitCode);
}

}  // namespace
}  // namespace logchecker
