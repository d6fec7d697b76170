// What a watch tells and does, round by round.
#include <filesystem>

#include "tests/headless/WatchStation.h"

namespace logchecker {
namespace {

namespace fs = std::filesystem;

TEST_F(WatchTest, TheFirstRoundTellsOfTheDayAndLaterOnesOnlyWhatIsNew) {
  EXPECT_EQ("day ", Round());
  EXPECT_NE(std::string::npos, Output().find("There were no problems found."));
  EXPECT_EQ("", Round());
  const int checks = watch_->Checks();
  EXPECT_EQ("", Round());
  EXPECT_EQ(checks, watch_->Checks()) << "nothing has changed";
}

TEST_F(WatchTest, AChangeIsCheckedWhenItHasStoodStillForAnInterval) {
  Settle();
  const std::string whole = folder().ReadFile(kLog);
  folder().WriteFile(kLog, whole.substr(0, whole.size() / 2));
  EXPECT_EQ("", Round());
  folder().WriteFile(kLog, whole.substr(0, whole.size() / 3));
  EXPECT_EQ("", Round()) << "it is being written";
  EXPECT_NE(std::string::npos, Round().find("mismatch "));
  folder().WriteFile(kLog, whole);
  Round();
  EXPECT_NE(std::string::npos, Round().find("mismatch-mended "));
}

TEST_F(WatchTest, AFileThatNeverStandsStillDoesNotHoldUpTheOthersForLong) {
  Settle();
  const std::string whole = folder().ReadFile(kLog);
  fs::remove(Path("station/logs/Easton and Weston/261122.LOG"));
  std::string told;
  for (int round = 0; round < 8; ++round) {
    folder().WriteFile(kLog, whole + std::string(static_cast<size_t>(round), ' '));
    told += Round();
  }
  EXPECT_NE(std::string::npos, told.find("log-gone "));
}

TEST_F(WatchTest, AFolderThatGoesAndComesBackIsToldOnceEach) {
  Settle();
  fs::rename(Path("station/logs/Larkfield"), Path("away"));
  EXPECT_EQ("folder-gone ", Round());
  EXPECT_NE(std::string::npos, last_.find("Larkfield can't be reached"));
  EXPECT_EQ("log-gone warning ", Round());
  EXPECT_EQ("", Round());
  fs::rename(Path("away"), Path("station/logs/Larkfield"));
  EXPECT_EQ("folder-back ", Round());
  EXPECT_EQ("log warning-over ", Round());
}

TEST_F(WatchTest, AShareThatTakesTheWholeStationIsToldOnce) {
  Settle();
  fs::rename(Path("station"), Path("away"));
  EXPECT_EQ("folder-gone ", Round());
  EXPECT_EQ("trouble ", Round());
  EXPECT_NE(std::string::npos, Output().find("not checked: there are no settings"));
  EXPECT_EQ("", Round());
  fs::rename(Path("away"), Path("station"));
  EXPECT_EQ("folder-back ", Round());
  EXPECT_EQ("trouble-over ", Round());
  EXPECT_NE(std::string::npos, Output().find("There were no problems found."));
}

// Moved back, it looks as it did before the check, which saw that it was not there.
TEST_F(WatchTest, AFolderThatIsAwayForTheMiddleOfACheckLeavesNoTraceInTheReport) {
  Settle();
  const std::string before = Output();
  folder().WriteFile("station/VELKLT.INI", folder().ReadFile("station/VELKLT.INI") + "\r\n");
  Round();
  int opens = 0;
  os.script.onCall = [&](const char* name) {
    if (std::string(name) != "Files.FileLength") return;
    ++opens;
    if (opens == 2) fs::rename(Path("station/logs"), Path("away"));
    if (opens == 9) fs::rename(Path("away"), Path("station/logs"));
  };
  seconds_ += kInterval;
  watch_->Round();
  os.script.Clear();
  if (fs::exists(Path("away"))) fs::rename(Path("away"), Path("station/logs"));
  EXPECT_NE(std::string::npos, Output().find("not checked")) << "the check did not see it";
  Settle();
  EXPECT_EQ(before, Output());
}

TEST_F(WatchTest, MidnightMovesItToTheNewTomorrow) {
  Settle();
  os.now = kToday + 1.01;
  EXPECT_EQ("day-over day trouble ", Round());
  EXPECT_NE(std::string::npos, Output().find("2026-11-23"));
  EXPECT_EQ(std::string::npos, Output().find("2026-11-22:"));
}

TEST_F(WatchTest, AnHourWithoutAChangeIsFollowedByACheck) {
  Settle();
  const int checks = watch_->Checks();
  seconds_ += 3600;
  EXPECT_EQ("", Round());
  EXPECT_EQ(checks + 1, watch_->Checks());
}

TEST_F(WatchTest, TheReportsFileComesBackWhoeverTakesItAway) {
  Settle();
  const std::string report = Output();
  fs::remove(Path("out"));
  Round();
  EXPECT_EQ(report, Output());
  folder().WriteFile("out", "half");
  Round();
  EXPECT_EQ(report, Output());
}

TEST_F(WatchTest, AReportThatCannotBeWrittenIsToldOnceAndWrittenLater) {
  fs::create_directory(Path("out"));
  EXPECT_EQ("day output ", Round());
  EXPECT_EQ("", Round());
  fs::remove(Path("out"));
  EXPECT_EQ("output-over ", Round());
  EXPECT_NE("", Output());
}

TEST_F(WatchTest, TheCommandGetsEachReportThatIsNewOnce) {
  commandFails_ = true;
  EXPECT_EQ("day command ", Round());
  Settle();
  ASSERT_EQ(1U, given_.size());
  EXPECT_EQ(Output(), given_[0]);
  commandFails_ = false;
  const std::string whole = folder().ReadFile(kLog);
  folder().WriteFile(kLog, whole.substr(0, whole.size() / 2));
  Settle();
  EXPECT_EQ(2U, given_.size());
  EXPECT_EQ("no longer: the command ended with 3", last_);
}

// A store of an older version is written to by its first check, and by each that can't mark it.
TEST_F(WatchTest, WhatACheckWritesIntoTheStationIsFollowedByOneMoreCheckAlone) {
  for (const auto& entry : fs::recursive_directory_iterator(Path("station"))) {
    if (entry.path().filename() != "Audwall.ini") continue;
    std::string text = folder().ReadFile(fs::relative(entry.path(), Path("")).string());
    const size_t version = text.find("Version=");
    ASSERT_NE(std::string::npos, version);
    text.replace(version, 11, "Version=2.0");
    folder().WriteFile(fs::relative(entry.path(), Path("")).string(), text);
  }
  Settle();
  const int checks = watch_->Checks();
  EXPECT_GE(3, checks);
  Settle();
  EXPECT_EQ(checks, watch_->Checks());
}

TEST_F(WatchTest, WhatAnUnreadableFileSaysIsAskedAgain) {
  Settle();
  fs::rename(Path(kLog), Path("kept"));
  fs::create_directory(Path(kLog));
  Settle();
  EXPECT_NE(std::string::npos, Output().find("no log for 2026-11-22"));
  fs::remove(Path(kLog));
  fs::rename(Path("kept"), Path(kLog));
  Settle();
  EXPECT_NE(std::string::npos, Output().find("There were no problems found."));
}

TEST_F(WatchTest, LinesAreTheTimeTheDayAndWhatIsNew) {
  WatchEvent event;
  event.kind = WatchEventKind::kMismatch;
  event.day = kToday + 1;
  event.time = "10:01";
  event.text = "10:01 does not match: A\x1B 1:00.00";
  EXPECT_EQ("2026-11-21 12:00:00 2026-11-22 10:01 does not match: A  1:00.00\n", TextLine(event));
  EXPECT_EQ(
      "{\"at\":\"2026-11-21T12:00:00Z\",\"event\":\"mismatch\",\"date\":\"2026-11-22\",\"split\":"
      "null,\"time\":\"10:01\",\"text\":\"10:01 does not match: A  1:00.00\"}\n",
      JsonLine(event));
  event = {};
  event.kind = WatchEventKind::kWarning;
  event.warning = WarningKind::kMissingLog;
  event.split = 2;
  event.text = "warning: x";
  EXPECT_EQ("2026-11-21 12:00:00 warning: x\n", TextLine(event));
  EXPECT_NE(std::string::npos,
            JsonLine(event).find("\"split\":2,\"time\":null,\"kind\":\"missing-log\""));
}

}  // namespace
}  // namespace logchecker
