#include "headless/pages/Board.h"

#include <gtest/gtest.h>

#include "headless/Verdict.h"
#include "headless/pages/BoardPage.h"
#include "headless/pages/BoardWords.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46402;  // 2027-01-15, a Friday
constexpr double kNow = kDay + 0.5;
constexpr double kHour = 1.0 / 24;

ReadDay Day(int32_t day, int code, int64_t mismatches = 0, size_t warnings = 0) {
  ReadDay read;
  read.day = day;
  read.code = code;
  read.counts = {60, 300, 0, mismatches};
  for (int64_t i = 0; i < mismatches; ++i) read.mismatchTimes.push_back("10:0" + std::to_string(i));
  for (size_t i = 0; i < warnings; ++i) read.warnings.push_back({"silent", 1, "cart <7>"});
  return read;
}

ReadDay Unchecked(int32_t day, bool noLogYet) {
  ReadDay read;
  read.day = day;
  read.code = kTrouble;
  read.trouble = "no <log>";
  read.noLogYet = noLogYet;
  return read;
}

ReportReading Report(const std::string& station, std::vector<ReadDay> days, double checkedAt = kNow,
                     const std::string& settings = "/srv") {
  ReadReport report;
  report.station = station;
  report.settings = settings;
  report.checkedAt = "2027-01-15T12:00:00Z";
  report.checkedAtNumber = checkedAt;
  report.days = std::move(days);
  return {std::move(report), ""};
}

std::string PageOf(Board& board, std::optional<int32_t> stale = std::nullopt) {
  board.Settle(kNow, stale);
  return BoardPage(board, {"", "2027-01-15T12:00:00Z", stale});
}

size_t Count(const std::string& text, const std::string& part) {
  size_t count = 0;
  for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

void ExpectHolds(const std::string& page, const std::string& part) {
  EXPECT_NE(std::string::npos, page.find(part)) << part;
}

TEST(BoardTest, EachDayHasAStateAndWords) {
  struct Case {
    ReadDay day;
    PageState state;
    const char* words;
    int code;
  };
  const Case cases[] = {
      {Day(kDay, 0), PageState::kMatch, "match", 0},
      {Day(kDay, 0, 0, 2), PageState::kMatch, "match, noted", 0},
      {Day(kDay, 0, 3), PageState::kMatch, "3 accepted", 0},
      {Day(kDay, 1, 1), PageState::kDiffers, "1 differs", 1},
      {Day(kDay, 1, 5), PageState::kDiffers, "5 differ", 1},
      {Day(kDay, 1, 0, 2), PageState::kSee, "2 to mend", 1},
      {Unchecked(kDay, true), PageState::kNoLog, "no log yet", 2},
      {Unchecked(kDay, false), PageState::kNotChecked, "not checked", 2},
  };
  for (const Case& each : cases) {
    Board board;
    board.Add("a.json", Report("North", {each.day}));
    board.Settle(kNow, 1);
    const BoardDay& day = board.Stations().at(0).days.at(kDay);
    EXPECT_EQ(each.state, day.state) << each.words;
    EXPECT_EQ(each.words, CellWords(day));
    EXPECT_EQ(each.code, board.Code()) << each.words;
  }
}

TEST(BoardTest, AReportIsTooOldByWhenItWasCheckedAndIsNoGreenThen) {
  for (const double age : {23.0, 25.0}) {
    Board board;
    board.Add("a.json", Report("North", {Day(kDay, 0)}, kNow - age * kHour));
    const std::string page = PageOf(board, 24);
    const BoardDay& day = board.Stations().at(0).days.at(kDay);
    EXPECT_EQ(age > 24 ? "too old" : "match", CellWords(day));
    EXPECT_EQ(age > 24 ? kTrouble : kAllMatch, board.Code());
    if (age > 24)
      ExpectHolds(page, "too old to go by. It said: All breaks that were compared match");
    ExpectHolds(page, "when it was checked more than 24 hours before");
  }
  Board board;
  board.Add("a.json", Report("North", {Day(kDay, 0)}, kNow - 10000));
  EXPECT_EQ(std::string::npos, PageOf(board).find("too old")) << "only where it was asked for";
  EXPECT_EQ(kAllMatch, board.Code());
}

TEST(BoardTest, OfTwoReportsOfADayTheOneThatWasCheckedLastCountsInAnyOrder) {
  for (const bool newerFirst : {false, true}) {
    Board board;
    const auto add = [&](bool newer) {
      board.Add(newer ? "new.json" : "old.json",
                Report("North", {Day(kDay, newer ? 1 : 0, newer ? 4 : 0), Day(kDay + 1, 0)},
                       newer ? kNow : kNow - 1, newer ? "/srv" : "/other"));
    };
    add(newerFirst);
    add(!newerFirst);
    const std::string page = PageOf(board);
    ASSERT_EQ(1U, board.Stations().size());
    EXPECT_EQ("4 differ", CellWords(board.Stations()[0].days.at(kDay)));
    EXPECT_EQ(2, board.Origins().at(newerFirst ? 1 : 0).daysSetAside);
    EXPECT_EQ(0, board.Origins().at(newerFirst ? 0 : 1).daysSetAside);
    ExpectHolds(page,
                "<bdi>old.json</bdi>: <bdi>North</bdi>, Fri 15 Jan 2027 to Sat 16 Jan 2027 "
                "(2 days), checked 2027-01-15 12:00 UTC; <bdi>new.json</bdi> counts");
    ExpectHolds(page, "where these are two stations, give each a name with --station");
    EXPECT_EQ(kToMend, board.Code()) << "one that is set aside is no trouble";
  }
}

TEST(BoardTest, OfTwoReportsOfOneSecondTheWorseCountsInAnyOrder) {
  for (const bool goodFirst : {false, true}) {
    Board board;
    board.Add("a.json", Report("North", {Day(kDay, goodFirst ? 0 : 1, goodFirst ? 0 : 1)}));
    board.Add("b.json", Report("North", {Day(kDay, goodFirst ? 1 : 0, goodFirst ? 1 : 0)}));
    board.Settle(kNow, std::nullopt);
    EXPECT_EQ(kToMend, board.Code());
  }
}

TEST(BoardTest, TroubleComesFirstThenNames) {
  Board board;
  board.Add("", Report("west", {Day(kDay, 0)}));
  board.Add("", Report("East", {Day(kDay, 0)}));
  board.Add("", Report("no log", {Unchecked(kDay, true)}));
  board.Add("", Report("mend", {Day(kDay, 1, 0, 9)}));
  board.Add("", Report("few", {Day(kDay, 1, 2)}));
  board.Add("", Report("many", {Day(kDay, 1, 9)}));
  board.Add("", Report("old", {Day(kDay, 0)}, kNow - 10));
  board.Add("", Report("trouble", {Unchecked(kDay, false)}));
  board.Settle(kNow, 24);
  std::vector<std::string> names;
  for (const BoardStation& station : board.Stations()) names.push_back(station.name);
  EXPECT_EQ(
      (std::vector<std::string>{"trouble", "old", "many", "few", "mend", "no log", "East", "west"}),
      names);
}

TEST(BoardTest, WhatCannotBeReadIsListedAndTrouble) {
  Board board;
  board.Add("good.json", Report("North", {Day(kDay, 0)}));
  board.Add("<b>ad.json", {std::nullopt, "is cut off at byte 12 & more"});
  const std::string page = PageOf(board);
  ExpectHolds(page, "<li><bdi>&lt;b&gt;ad.json</bdi> is cut off at byte 12 &amp; more</li>");
  ExpectHolds(page, "<a href=\"#unread\">report unreadable</a>");
  EXPECT_EQ(kTrouble, board.Code());
}

TEST(BoardTest, WithoutAReportNothingIsGood) {
  Board board;
  const std::string page = PageOf(board);
  EXPECT_EQ(kTrouble, board.Code());
  ExpectHolds(page, "Advert breaks of 0 stations");
}

TEST(BoardTest, EveryCellLeadsToWhatStandsBehindIt) {
  Board board;
  board.Add("a.json", Report("North", {Day(kDay, 1, 2, 1), Unchecked(kDay + 2, false)}));
  board.Add("b.json", Report("South", {Day(kDay + 1, 0)}));
  const std::string page = PageOf(board);
  ExpectHolds(page, "<a href=\"#s1-2027-01-15\">");
  ExpectHolds(page, "<tr id=\"s1-2027-01-15\"><th scope=\"row\">Fri 15 Jan 2027</th>");
  ExpectHolds(page, "2 breaks differ: 10:00, 10:01.");
  ExpectHolds(page, "<li><bdi>cart &lt;7&gt;</bdi></li>");
  ExpectHolds(page, "<tr id=\"s1-2027-01-17\">");
  ExpectHolds(page, "no &lt;log&gt;.");
  ExpectHolds(page, "60 breaks and 300 adverts in all splits");
  EXPECT_EQ(3U, Count(page, "<td class=\"none\">no report</td>"));
}

TEST(BoardTest, MoreThanAFortnightStandsInTablesOfOneSize) {
  Board board;
  std::vector<ReadDay> days;
  for (int32_t i = 0; i < 31; ++i) days.push_back(Day(kDay + i * 2, 0));
  board.Add("a.json", Report("North", days));
  board.Add("b.json", Report("South", {Day(kDay, 0)}));
  const std::string page = PageOf(board);
  EXPECT_EQ(3U, Count(page, "<caption>"));
  EXPECT_EQ(31U, Count(page, "<time datetime="));
  EXPECT_EQ(1U, Count(page, "<tr><th scope=\"row\"><a href=\"#s2\">"))
      << "a station stands in the tables that it has a day in";
}

TEST(BoardTest, TheSummaryCountsDaysAndNamesTheWorstTen) {
  Board board;
  for (int i = 0; i < 12; ++i) {
    board.Add("", Report("S" + std::to_string(i), {Day(kDay, 1, 1), Unchecked(kDay + 1, true)}));
  }
  for (int i = 0; i < 1200; ++i) board.Add("", Report("T" + std::to_string(i), {Day(kDay, 0)}));
  const std::string page = PageOf(board);
  ExpectHolds(page, "<span class=\"count\">12</span> days differ");
  ExpectHolds(page, "<span class=\"count\">12</span> days without a log yet");
  ExpectHolds(page, "<span class=\"count\">1,200</span> days match");
  EXPECT_EQ(10U, Count(page, ": 1 day with 1 break that differs, 1 day without a log yet</li>"));
  ExpectHolds(page, "And 2 more, on top of <a href=\"#grid\">");
}

TEST(BoardTest, MuchOfADayIsCut) {
  ReadDay day = Day(kDay, 1, 0, kMostWarningsOnABoard + 7);
  day.counts.mismatches = 400;
  for (int i = 0; i < 400; ++i) day.mismatchTimes.emplace_back("12:34");
  day.warnings[0].text = std::string(5000, 'x');
  Board board;
  board.Add("a.json", Report("North", {day}));
  const std::string page = PageOf(board);
  ExpectHolds(page, "400 breaks differ: 12:34");
  EXPECT_EQ(kMostTimesOnABoard, Count(page, "12:34"));
  ExpectHolds(page, "12:34 and 360 more.");
  ExpectHolds(page, "<li>and 7 more</li>");
  ExpectHolds(page, std::string(kLongestTextOnABoard - 1, 'x') + "\xE2\x80\xA6");
}

TEST(BoardTest, ANameIsTextAndALongOneIsFolded) {
  Board board;
  const std::string name = "<script>alert(1)</script>\"'&" + std::string(5000, 'L');
  board.Add("<i>.json", Report(name, {Day(kDay, 1, 1)}, kNow, "/srv/<u>"));
  board.Settle(kNow, std::nullopt);
  const std::string page = BoardPage(board, {"<h1>\xE2\x80\xAE", "2027-01-15T12:00:00Z", {}});
  EXPECT_EQ(std::string::npos, page.find("<script"));
  EXPECT_EQ(std::string::npos, page.find("<i>"));
  EXPECT_EQ(std::string::npos, page.find("<u>"));
  ExpectHolds(page, "<h1><bdi>&lt;h1&gt;\\u202e</bdi></h1>");
  EXPECT_EQ(1U, Count(page, std::string(5000, 'L')));
}

}  // namespace
}  // namespace logchecker
