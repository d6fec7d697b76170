// The program itself, as a process, on stations on disk.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "tests/support/RunProgram.h"

namespace logchecker {
namespace {

constexpr char kDate[] = " --date 2026-11-21";

class LogcheckTest : public ::testing::Test {
 protected:
  ProgramResult Run(const std::string& arguments) const {
    return RunProgram("logcheck", arguments, folder_);
  }
  ProgramResult RunOnStation(const std::string& arguments) const {
    return Run("--settings \"" + folder_.Path("station") + "\" " + arguments);
  }
  void WriteSample(const std::string& sizes = "") const {
    ASSERT_EQ(0, Run("sample \"" + folder_.Path("station") + "\"" + kDate + sizes).exitCode);
  }
  static size_t Lines(const std::string& text) {
    return static_cast<size_t>(std::count(text.begin(), text.end(), '\n'));
  }

  TempFolder folder_;
};

TEST_F(LogcheckTest, TheSampleDiffersAndTheReportSaysWhere) {
  WriteSample();
  const ProgramResult result = RunOnStation(std::string("check") + kDate);
  EXPECT_EQ(1, result.exitCode);
  EXPECT_EQ("", result.errors);
  EXPECT_NE(std::string::npos, result.output.find("5 ad breaks did not match in all splits"));
  EXPECT_NE(std::string::npos, result.output.find("Coast: carts without audio"));
}

TEST_F(LogcheckTest, AStationWithoutMistakesMatches) {
  WriteSample(" --breaks 10");
  const ProgramResult result = RunOnStation(kDate);
  EXPECT_EQ(0, result.exitCode);
  EXPECT_NE(std::string::npos, result.output.find("There were no problems found."));
}

TEST_F(LogcheckTest, CsvGoesToAFileAsItGoesToStandardOutput) {
  WriteSample();
  const ProgramResult printed = RunOnStation(std::string("--format csv") + kDate);
  EXPECT_EQ(6U, Lines(printed.output));
  EXPECT_EQ(0U, printed.output.find("\"Time\",\"Larkfield\","));
  EXPECT_NE(std::string::npos, printed.output.find("\"\r\n"));
  const ProgramResult written = RunOnStation(std::string("--format csv") + kDate + " --output \"" +
                                             folder_.Path("out.csv") + "\"");
  EXPECT_EQ(1, written.exitCode);
  EXPECT_EQ("", written.output);
  EXPECT_EQ(printed.output, folder_.ReadFile("out.csv"));
}

TEST_F(LogcheckTest, JsonCanBeParsed) {
  WriteSample();
  const ProgramResult result = RunOnStation(std::string("--format json") + kDate);
  const nlohmann::json json = nlohmann::json::parse(result.output);
  EXPECT_EQ(5U, json["days"][0]["splits"].size());
  EXPECT_EQ(5U, json["days"][0]["mismatches"].size());
}

TEST_F(LogcheckTest, SeveralDaysAreCheckedEachOnItsOwnLogs) {
  WriteSample(" --days 2");
  const ProgramResult two = RunOnStation(std::string("--days 2 --format csv") + kDate);
  EXPECT_EQ(1, two.exitCode);
  EXPECT_EQ(11U, Lines(two.output));
  const ProgramResult three = RunOnStation(std::string("--days 3 --format csv") + kDate);
  EXPECT_EQ(2, three.exitCode);
  EXPECT_EQ(11U, Lines(three.output));
  EXPECT_EQ(3U, Lines(three.errors)) << "the adverts without audio of two days, and the third";
  EXPECT_NE(std::string::npos, three.errors.find("no active split has a log for 2026-11-23"));
}

TEST_F(LogcheckTest, ASplitWithoutALogIsAWarningBesideOthers) {
  WriteSample();
  std::filesystem::remove_all(folder_.Path("station") + "/logs/Coast");
  const ProgramResult result = RunOnStation(std::string("--format csv") + kDate);
  EXPECT_EQ(1, result.exitCode);
  EXPECT_EQ(1U, Lines(result.errors));
  EXPECT_NE(std::string::npos, result.errors.find("warning: no log for 2026-11-21: split 4"));
  EXPECT_EQ(61U + 1U, Lines(result.output));
}

TEST_F(LogcheckTest, AMissingListFileIsTroubleUnlessItMayBeMade) {
  WriteSample();
  folder_.WriteFile("keep", "");
  std::filesystem::remove(folder_.Path("station") + "/audio/carts 1/Carts1.lst");
  const ProgramResult refused = RunOnStation(kDate);
  EXPECT_EQ(2, refused.exitCode);
  EXPECT_EQ(1U, Lines(refused.errors));
  EXPECT_NE(std::string::npos, refused.errors.find("Part 1 of the AudioWall has not been found."));
  EXPECT_FALSE(folder_.Exists("station/audio/carts 1/Carts1.lst"));
  const ProgramResult made = RunOnStation(std::string("--create-missing") + kDate);
  EXPECT_EQ(1, made.exitCode);
  EXPECT_EQ(300000U, folder_.ReadFile("station/audio/carts 1/Carts1.lst").size());
}

TEST_F(LogcheckTest, TroubleIsOneLineAndExitCodeTwo) {
  struct Case {
    const char* settings;  // VELKLT.INI; null for none
    const char* family;
    const char* words;
  };
  const Case cases[] = {
      {nullptr, nullptr, "there are no settings"},
      {"", nullptr, "there are no settings"},
      {"[General]\r\nNumberActiveSplits=0\r\n", nullptr, "NumberActiveSplits=0"},
      {"[General]\r\nNumberActiveSplits=11\r\n", nullptr, "NumberActiveSplits=11"},
      {"[General]\r\nNumberActiveSplits=-1\r\n", nullptr, "NumberActiveSplits=-1"},
      {"[General]\r\nNumberActiveSplits=65538\r\n", nullptr, "NumberActiveSplits=32767"},
      {"[General]\r\n", nullptr, "10 locations of the AudioWall have not been set"},
      {"[General]\r\n", "[FileLocations]\r\nCarts1=nowhere\r\n",
       "9 locations of the AudioWall have not been set"},
      {"\xFF\xFE\x00garbage", nullptr, "locations of the AudioWall"},
  };
  for (const Case& row : cases) {
    const TempFolder station;
    if (row.settings != nullptr) station.WriteFile("VELKLT.INI", row.settings);
    if (row.family != nullptr) station.WriteFile("VELMAR.INI", row.family);
    const ProgramResult result = Run("--settings \"" + station.Path() + "\"" + kDate);
    EXPECT_EQ(2, result.exitCode) << row.words;
    EXPECT_NE(std::string::npos, result.output.find("Saturday 2026-11-21: not checked: "));
    EXPECT_NE(std::string::npos, result.output.find(row.words)) << result.output;
    EXPECT_EQ(1U, Lines(result.errors)) << result.errors;
    EXPECT_NE(std::string::npos, result.errors.find(row.words)) << result.errors;
  }
}

TEST_F(LogcheckTest, ShowPrintsTheGridARowALine) {
  WriteSample(" --splits 1 --breaks 2 --adverts 1");
  const ProgramResult result = RunOnStation(std::string("show --split 1") + kDate);
  EXPECT_EQ(0, result.exitCode);
  EXPECT_EQ(6U, Lines(result.output));
  EXPECT_EQ(0U, result.output.find("1\t00:01\t"));
  EXPECT_NE(std::string::npos, result.output.find("\t1\twhite\n2\t\t\t\t\t"));
  EXPECT_NE(std::string::npos, result.output.find("\n3\t\t\t\t\t\t\t\n4\t12:01\t"));
  const ProgramResult missing = RunOnStation("show --split 1 --date 2026-11-22");
  EXPECT_EQ(2, missing.exitCode);
  EXPECT_NE(std::string::npos, missing.errors.find("no log for split 1 \"Larkfield\""));
}

TEST_F(LogcheckTest, CartPrintsARecordALine) {
  WriteSample();
  const ProgramResult result = RunOnStation("cart 1 3950 4001");
  EXPECT_EQ(0, result.exitCode);
  EXPECT_EQ(
      "1\t0\tLarkfield Radio jingle 1\tStation sound\t\t6.5\t6.5\t0\t6.5\t6.5\n"
      "3950\t0\t\t\t\t0\t-1\t0\t0\t-1\n"
      "4001\t-1\t\t\t\t0\t-1\t0\t0\t-1\n",
      result.output);
}

TEST_F(LogcheckTest, AReportThatCannotBeWrittenLeavesTheOldOne) {
  WriteSample();
  const ProgramResult result = RunOnStation(std::string("--format csv") + kDate + " --output \"" +
                                            folder_.Path("no-folder") + "/out.csv\"");
  EXPECT_EQ(2, result.exitCode);
  EXPECT_NE(std::string::npos, result.errors.find("could not be written: Path not found"));
}

}  // namespace
}  // namespace logchecker
