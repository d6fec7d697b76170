#include "headless/ReportDifference.h"

#include <gtest/gtest.h>

namespace logchecker {
namespace {

constexpr int32_t kDay = 46347;

// A day of the splits A and B with breaks that do not match at these minutes, by A's text.
DayReport Day(const std::vector<std::pair<int, std::string>>& breaks, int32_t day = kDay) {
  DayReport report;
  report.day = day;
  for (int16_t n = 1; n <= 2; ++n) {
    SplitReport split;
    split.number = n;
    split.name = n == 1 ? "A" : "B";
    split.logPath = "/logs/" + split.name;
    split.loaded = true;
    split.adverts = 1;
    report.splits.push_back(split);
  }
  for (const auto& [minute, text] : breaks) {
    report.mismatches.push_back({static_cast<float>(minute * 60), {{true, 1}, {false, 0}}});
    report.results.ListItems.push_back(
        {"", "00:0" + std::to_string(minute), {{text}, {"Not Found"}}});
  }
  return report;
}

DayReport WithoutLog(DayReport day, size_t split) {
  day.splits[split].loaded = false;
  day.splits[split].adverts = 0;
  return day;
}

DayReport WithWarning(DayReport day, const std::string& text) {
  day.warnings.push_back({WarningKind::kStation, 0, text});
  return day;
}

DayReport WithTrouble(DayReport day, const std::string& text) {
  day.trouble = text;
  return day;
}

std::string TextOf(const std::vector<WatchEvent>& events) {
  std::string text;
  for (const WatchEvent& event : events) {
    text += std::string(NameOf(event.kind)) + ": " + event.text + "\n";
  }
  return text;
}

TEST(ReportDifference, OnlyWhatIsNewIsTold) {
  const DayReport one = Day({{1, "1:00"}});
  struct Case {
    std::vector<DayReport> before;
    std::vector<DayReport> now;
    const char* events;
  };
  const Case cases[] = {
      {{one}, {one}, ""},
      {{Day({})}, {one}, "mismatch: 00:01 does not match: A 1:00, B Not Found\n"},
      {{one}, {Day({})}, "mismatch-mended: 00:01 is mended\n"},
      {{one},
       {Day({{1, "2:00"}})},
       "mismatch-changed: 00:01 still does not match: A 2:00, B Not Found\n"},
      {{one},
       {Day({{2, "1:00"}})},
       "mismatch-mended: 00:01 is mended\n"
       "mismatch: 00:02 does not match: A 1:00, B Not Found\n"},
      {{Day({{2, "1:00"}})},
       {Day({{1, "1:00"}, {2, "1:00"}})},
       "mismatch: 00:01 does not match: A 1:00, B Not Found\n"},
      {{WithoutLog(Day({}), 1)}, {Day({})}, "log: B: log arrived: /logs/B\n"},
      {{Day({})}, {WithoutLog(Day({}), 0)}, "log-gone: A: log gone: /logs/A\n"},
      {{Day({})}, {WithWarning(Day({}), "w")}, "warning: warning: w\n"},
      {{WithWarning(Day({}), "w")},
       {WithWarning(Day({}), "v")},
       "warning-over: no longer: w\nwarning: warning: v\n"},
      {{one}, {WithTrouble(Day({}), "t")}, "trouble: not checked: t\n"},
      {{WithTrouble(one, "t")}, {one}, "trouble-over: can be checked again\n"},
      {{WithTrouble(one, "t")}, {WithTrouble(one, "u")}, "trouble: not checked: u\n"},
      {{},
       {one},
       "day: watched from now on; 2 of 2 splits have a log\n"
       "mismatch: 00:01 does not match: A 1:00, B Not Found\n"},
      {{one},
       {Day({}, kDay + 1)},
       "day-over: no longer watched\nday: watched from now on; 2 of 2 splits have a log\n"},
  };
  for (const Case& row : cases) EXPECT_EQ(row.events, TextOf(Difference(row.before, row.now)));
}

TEST(ReportDifference, NobodyKnowsWhatBecameOfTheBreaksOfADayWithTrouble) {
  const std::vector<DayReport> before = {Day({{1, "1:00"}})};
  const std::vector<DayReport> known = Known(before, {WithTrouble(Day({}), "t")});
  EXPECT_EQ("trouble-over: can be checked again\n", TextOf(Difference(known, before)));
  EXPECT_EQ("trouble-over: can be checked again\nmismatch-mended: 00:01 is mended\n",
            TextOf(Difference(known, {Day({})})));
}

TEST(ReportDifference, BreaksThatDifferForAMissingLogAloneAreNotTold) {
  const std::vector<DayReport> gone = {WithoutLog(Day({{1, "1:00"}, {2, "2:00"}}), 1)};
  EXPECT_EQ(0U, WithoutRowsOfMissingLogs({}, gone)[0].mismatches.size());
  const std::vector<DayReport> before = {Day({{2, "2:00"}})};
  const std::vector<DayReport> kept = WithoutRowsOfMissingLogs(before, gone);
  ASSERT_EQ(1U, kept[0].mismatches.size());
  EXPECT_EQ("log-gone: B: log gone: /logs/B\n", TextOf(Difference(before, kept)))
      << "what is known already is not mended";
}

}  // namespace
}  // namespace logchecker
