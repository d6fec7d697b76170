// logcheck board, as a process on files.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/RunProgram.h"

namespace logchecker {
namespace {

constexpr char kReport[] =
    R"({"program":"logcheck","version":"1","schema":1,"station":"North","settings":"/srv",)"
    R"("checkedAt":"2020-01-01T00:00:00Z","code":0,"days":[{"date":"2020-01-02","code":0,)"
    R"("counts":{"breaks":1,"adverts":2,"withoutAudio":0,"mismatches":0},"warnings":[],)"
    R"("mismatches":[]}]})";

class BoardVerbTest : public ::testing::Test {
 protected:
  ProgramResult Board(const std::string& arguments) const {
    return RunProgram("logcheck", "board " + arguments, folder_);
  }
  std::string Name(const std::string& name) const { return '"' + folder_.Path(name) + "\" "; }

  static void ExpectHolds(const std::string& text, const std::string& part) {
    EXPECT_NE(std::string::npos, text.find(part)) << part << "\nin\n" << text.substr(0, 2000);
  }

  TempFolder folder_;
};

TEST_F(BoardVerbTest, ReportsOfTheProgramItselfMakeAPage) {
  for (const std::string station : {"North", "South"}) {
    const std::string made = Name(station);
    ASSERT_EQ(0, RunProgram("logcheck", "sample " + made + " --date 2027-01-15", folder_).exitCode);
    const ProgramResult checked = RunProgram(
        "logcheck",
        "check --settings " + made + " --date 2027-01-15 --days 2 --format json --output " +
            Name(station + ".json"),
        folder_);
    ASSERT_EQ(2, checked.exitCode) << "the second day has no log";
  }
  const ProgramResult result = Board(Name("South.json") + Name("North.json"));
  EXPECT_EQ(2, result.exitCode) << "the greatest of the days' codes";
  EXPECT_EQ("", result.errors);
  EXPECT_EQ(0U, result.output.find("<!DOCTYPE html>"));
  ExpectHolds(result.output, "<span class=\"count\">2</span> days differ");
  ExpectHolds(result.output, "<span class=\"count\">2</span> days without a log yet");
  EXPECT_LT(result.output.find("<h3 id=\"s1\"><bdi>North</bdi></h3>"),
            result.output.find("<h3 id=\"s2\"><bdi>South</bdi></h3>"));
}

TEST_F(BoardVerbTest, WhatIsNoReportIsSaidAndListedBesideThoseThatAre) {
  folder_.WriteFile("good.json", kReport);
  folder_.WriteFile("empty.json", "");
  folder_.WriteFile("cut.json", std::string(kReport).substr(0, 100));
  folder_.WriteFile("binary.json", std::string("\0\xFF\x1B[31m", 7));
  std::string newer = kReport;
  newer.replace(newer.find("\"schema\":1"), 10, "\"schema\":9");
  folder_.WriteFile("newer.json", newer);
  const ProgramResult result =
      Board(Name("good.json") + Name("empty.json") + Name("cut.json") + Name("binary.json") +
            Name("newer.json") + Name("missing.json") + Name(""));
  EXPECT_EQ(2, result.exitCode);
  ExpectHolds(result.output,
              "<span class=\"count\">6</span> <a href=\"#unread\">reports unreadable");
  ExpectHolds(result.output, "<span class=\"count\">1</span> day matches");
  for (const char* name : {"empty", "cut", "binary", "newer", "missing"}) {
    ExpectHolds(result.output, std::string(name) + ".json</bdi> ");
    ExpectHolds(result.errors, std::string(name) + ".json ");
  }
  ExpectHolds(result.errors, "is a folder: name the reports in it");
  EXPECT_EQ(std::string::npos, result.errors.find('\x1B'));
}

TEST_F(BoardVerbTest, AHugeFileOfNothingIsRefusedInTime) {
  folder_.WriteFile("huge.json", "[" + std::string(size_t{8} << 20U, '['));
  folder_.WriteFile("long.json", "{\"program\":\"" + std::string(size_t{8} << 20U, 'x') + "\"}");
  const ProgramResult result = Board(Name("huge.json") + Name("long.json"));
  EXPECT_EQ(2, result.exitCode);
  ExpectHolds(result.output,
              "<span class=\"count\">2</span> <a href=\"#unread\">reports unreadable");
  EXPECT_LT(result.output.size(), 20000U);
}

TEST_F(BoardVerbTest, TheCodeIsThatOfTheDaysUnlessTheyAreTooOld) {
  folder_.WriteFile("a.json", kReport);
  EXPECT_EQ(0, Board(Name("a.json")).exitCode);
  const ProgramResult old = Board("--stale 48 " + Name("a.json"));
  EXPECT_EQ(2, old.exitCode);
  ExpectHolds(old.output, "<span class=\"count\">1</span> day too old");
}

TEST_F(BoardVerbTest, ATitleIsTextAndStandsInTheHead) {
  folder_.WriteFile("a.json", kReport);
  const ProgramResult result = Board("--title \"Night & <day>\" " + Name("a.json"));
  ExpectHolds(result.output, "<title>Night &amp; &lt;day&gt;</title>");
  ExpectHolds(result.output, "<h1><bdi>Night &amp; &lt;day&gt;</bdi></h1>");
}

TEST_F(BoardVerbTest, ThePageIsWrittenWholeOrNotAtAll) {
  folder_.WriteFile("a.json", kReport);
  EXPECT_EQ(0, Board("--output " + Name("page.html") + Name("a.json")).exitCode);
  const std::string page = folder_.ReadFile("page.html");
  EXPECT_EQ(0U, page.find("<!DOCTYPE html>"));
  EXPECT_EQ("</html>\n", page.substr(page.size() - 8));
  const ProgramResult nowhere = Board("--output " + Name("none/page.html") + Name("a.json"));
  EXPECT_EQ(2, nowhere.exitCode);
  EXPECT_NE("", nowhere.errors);
}

TEST_F(BoardVerbTest, ArgumentsThatSayNothingAreRefused) {
  for (const char* arguments : {"", "--title \"\" a.json", "--stale 0 a.json", "--stale x a.json",
                                "--output \"\" a.json", "\"\"", "--format json a.json"}) {
    const ProgramResult result = Board(arguments);
    EXPECT_EQ(2, result.exitCode) << arguments;
    EXPECT_EQ("", result.output) << arguments;
  }
}

TEST_F(BoardVerbTest, StationsAreCheckedAndShownInOneGo) {
  const std::string made = Name("one");
  ASSERT_EQ(0, RunProgram("logcheck", "sample " + made + " --date 2027-01-15", folder_).exitCode);
  folder_.WriteFile("list.txt",
                    "One <1> = " + folder_.Path("one") + "\nGone = " + folder_.Path("gone") + "\n");
  const ProgramResult result = RunProgram(
      "logcheck", "stations --date 2027-01-15 --format html --title All " + Name("list.txt"),
      folder_);
  EXPECT_EQ(2, result.exitCode);
  ExpectHolds(result.output, "<title>All</title>");
  ExpectHolds(result.output, "<h3 id=\"s1\"><bdi>Gone</bdi></h3>");
  ExpectHolds(result.output, "<h3 id=\"s2\"><bdi>One &lt;1&gt;</bdi></h3>");
  ExpectHolds(result.output, "5 differ");
  EXPECT_EQ(std::string::npos, result.output.find("Read from"));
}

}  // namespace
}  // namespace logchecker
