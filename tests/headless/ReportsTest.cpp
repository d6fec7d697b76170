#include "headless/Reports.h"

#include <gtest/gtest.h>

#include <limits>
#include <nlohmann/json.hpp>

#include "headless/Output.h"
#include "tests/support/KeepReport.h"

namespace logchecker {
namespace {

using Json = nlohmann::json;

DayReport Day(int32_t day) {
  DayReport report;
  report.day = day;
  report.toleranceMS = 500;
  SplitReport north;
  north.number = 1;
  north.name = "N\xF6rth \"A\"";
  north.logPath = "C:\\LOGS\\1.LOG";
  north.loaded = true;
  north.breaks = 2;
  north.adverts = 5;
  north.silentAdverts = {{4, "10:30", 77, "LOST\tVOICE", "REF-1", "130"}};
  SplitReport south;
  south.number = 2;
  south.name = "South";
  report.splits = {north, south};
  report.results.ColumnHeaders = {{"Time"}, {north.name}, {south.name}};
  return report;
}

CheckReport ReportOf(std::vector<DayReport> days) {
  CheckReport report;
  report.station = "C\xF4te";
  report.settings = "/srv/C\xF4te\\x";
  report.checkedAt = "2027-01-15T14:03:21Z";
  report.days = std::move(days);
  return report;
}

DayReport DayWithMismatch(int32_t day) {
  DayReport report = Day(day);
  report.results.ListItems = {{"t37800", "10:30", {{" 2:00.30"}, {"Not Found"}}}};
  report.mismatches = {{37800, {{true, 120.3F}, {false, 0}}}};
  report.adverts = {
      {std::vector<AdvertReport>{{4, 77, "LOST\tVOICE", "REF-1", 120.3F, true}}, std::nullopt}};
  return report;
}

TEST(Reports, CsvOfOneDayIsTheDesktopsExport) {
  EXPECT_EQ("\"Time\",\"N\xF6rth 'A'\",\"South\"\r\n\"10:30\",\"2:00.30\",\"Not Found\"\r\n",
            CsvReport(ReportOf({DayWithMismatch(36526)}), false));
}

TEST(Reports, CsvWithoutMismatchIsTheHeadingAlone) {
  EXPECT_EQ("\"Time\",\"N\xF6rth 'A'\",\"South\"\r\n", CsvReport(ReportOf({Day(36526)}), false));
}

TEST(Reports, CsvOfMoreDaysPutsTheDateFirstAndTheHeadingOnce) {
  EXPECT_EQ(
      "\"Date\",\"Time\",\"N\xF6rth 'A'\",\"South\"\r\n"
      "\"2000-01-01\",\"10:30\",\"2:00.30\",\"Not Found\"\r\n"
      "\"2000-01-03\",\"10:30\",\"2:00.30\",\"Not Found\"\r\n",
      CsvReport(ReportOf({DayWithMismatch(36526), Day(36527), DayWithMismatch(36528)}), true));
}

TEST(Reports, CsvOfADayThatCouldNotBeCheckedIsTheHeadingAlone) {
  DayReport troubled = Day(36526);
  troubled.trouble = "no log";
  EXPECT_EQ("\"Time\",\"N\xF6rth 'A'\",\"South\"\r\n", CsvReport(ReportOf({troubled}), false));
}

TEST(Reports, TextIsATableAndThenTheCartsWithoutAudio) {
  const std::string text = TextReport(ReportOf({DayWithMismatch(36526)}));
  EXPECT_NE(std::string::npos, text.find("2000-01-01: 1 ad break did not match in all splits"));
  EXPECT_NE(std::string::npos, text.find("Time   N\xC3\xB6rth \"A\"      South\n"
                                         "10:30    2:00.30  Not Found\n"))
      << text;
  EXPECT_NE(std::string::npos, text.find("carts without audio\n  10:30      77  LOST VOICE\n"));
}

TEST(Reports, TextSaysThatNothingDiffersOrThatNothingWasChecked) {
  EXPECT_NE(std::string::npos,
            TextReport(ReportOf({Day(36526)})).find("2000-01-01: There were no problems found.\n"));
  DayReport troubled = Day(36526);
  troubled.trouble = "no log";
  EXPECT_NE(std::string::npos,
            TextReport(ReportOf({troubled})).find("2000-01-01: not checked: no log\n"));
}

TEST(Reports, JsonHoldsTheWholeDay) {
  const Json json = Json::parse(KeepReport(JsonReport(ReportOf({DayWithMismatch(36526)}))));
  EXPECT_EQ("logcheck", json["program"]);
  const Json& day = json["days"][0];
  EXPECT_EQ("2000-01-01", day["date"]);
  EXPECT_EQ(0.5, day["toleranceSeconds"]);
  EXPECT_EQ("N\xC3\xB6rth \"A\"", day["splits"][0]["name"]);
  EXPECT_EQ("C:\\LOGS\\1.LOG", day["splits"][0]["log"]);
  EXPECT_EQ(true, day["splits"][0]["loaded"]);
  EXPECT_EQ(false, day["splits"][1]["loaded"]);
  EXPECT_EQ(2, day["splits"][0]["breaks"]);
  EXPECT_EQ(5, day["splits"][0]["adverts"]);
  EXPECT_EQ(Json::parse(R"([{"row":4,"time":"10:30","cart":77,"description":"LOST\tVOICE",
                             "reference":"REF-1","position":130}])"),
            day["splits"][0]["cartsWithoutAudio"]);
  EXPECT_EQ(Json::parse(R"([{"seconds":37800.0,"time":"10:30",
                             "lengths":[{"seconds":120.3,"text":"2:00.30"},null],
                             "adverts":[[{"row":4,"cart":77,"description":"LOST\tVOICE",
                                          "reference":"REF-1","length":120.3,"audio":true}],
                                        null]}])"),
            day["mismatches"]);
}

TEST(Reports, JsonShowsALengthThatIsNoNumberAsNull) {
  DayReport day = DayWithMismatch(36526);
  day.mismatches[0].Lengths[0].seconds = std::numeric_limits<float>::quiet_NaN();
  const Json json = Json::parse(KeepReport(JsonReport(ReportOf({day}))));
  EXPECT_TRUE(json["days"][0]["mismatches"][0]["lengths"][0]["seconds"].is_null());
}

TEST(Reports, JsonSaysWhyADayWasNotChecked) {
  DayReport troubled = Day(36526);
  troubled.trouble = "no log";
  const Json json = Json::parse(KeepReport(JsonReport(ReportOf({troubled}))));
  EXPECT_EQ("no log", json["days"][0]["trouble"]);
  EXPECT_FALSE(json["days"][0].contains("mismatches"));
}

TEST(Reports, AFieldHasNoControlCharacters) {
  EXPECT_EQ("a b c  \xC3\xA9", FieldText("a\tb\nc\x7F\x01\xE9"));
  EXPECT_EQ("a     b", FieldText("a\x81\x8D\x8F\x90\x9D"
                                 "b"));
}

}  // namespace
}  // namespace logchecker
