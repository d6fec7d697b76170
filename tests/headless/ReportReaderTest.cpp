#include "headless/ReportReader.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "headless/IsoDates.h"
#include "headless/Reports.h"
#include "tests/support/ScriptedPlatform.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

using Json = nlohmann::ordered_json;

constexpr int32_t kDay = 46402;  // 2027-01-15

DayReport CheckedDay(int32_t day) {
  DayReport report;
  report.day = day;
  SplitReport north;
  north.number = 1;
  north.name = "N\xF6rth";
  north.breaks = 7;
  north.adverts = 21;
  report.splits = {north};
  report.warnings = {{WarningKind::kMidnight, 1, "a break at \"00:00\""},
                     {WarningKind::kStation, 0, "<b>"}};
  report.results.ListItems = {{"t1", "10:30", {{" 2:00.30"}}}};
  report.mismatches = {{37800, {{true, 120.3F}}}};
  report.adverts = {{std::nullopt}};
  return report;
}

std::string Sample() {
  CheckReport report;
  report.station = "C\xF4te";
  report.settings = "/srv/c";
  report.checkedAt = "2027-01-14T18:00:00Z";
  DayReport troubled;
  troubled.day = kDay + 1;
  troubled.trouble = "no log";
  troubled.noLogYet = true;
  report.days = {CheckedDay(kDay), troubled};
  return JsonReport(report);
}

// The sample with one place of it changed.
std::string Changed(const char* pointer, const Json& value) {
  Json json = Json::parse(Sample());
  json[Json::json_pointer(pointer)] = value;
  return json.dump();
}

std::string Without(const char* pointer, const char* name) {
  Json json = Json::parse(Sample());
  json[Json::json_pointer(pointer)].erase(name);
  return json.dump();
}

// The sample with something put in front of what begins with `place`, in its first day.
std::string With(const std::string& added, const std::string& place) {
  std::string sample = Sample();
  return sample.insert(sample.find(place), added);
}

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

std::vector<ReportReading> ReadAll(const std::string& bytes, size_t atOnce) {
  std::vector<ReportReading> readings;
  std::string_view rest = bytes;
  const auto next = [&] {
    const std::string_view piece = rest.substr(0, atOnce);
    rest.remove_prefix(piece.size());
    return piece;
  };
  ReadReports(next, [&](ReportReading&& reading) { readings.push_back(std::move(reading)); });
  return readings;
}

TEST(ReportReader, ReadsBackWhatTheCheckHasWritten) {
  const ReportReading reading = ReadOneReport(Sample());
  ASSERT_TRUE(reading.report) << reading.failure;
  const ReadReport& report = *reading.report;
  EXPECT_EQ("C\xC3\xB4te", report.station);
  EXPECT_EQ("/srv/c", report.settings);
  EXPECT_EQ("2027-01-14T18:00:00Z", report.checkedAt);
  EXPECT_EQ(kDay - 1 + 0.75, report.checkedAtNumber);
  EXPECT_EQ(2, report.code);
  ASSERT_EQ(2U, report.days.size());
  const ReadDay& day = report.days[0];
  EXPECT_EQ(kDay, day.day);
  EXPECT_EQ(1, day.code);
  EXPECT_EQ("", day.trouble);
  EXPECT_EQ(7, day.counts.breaks);
  EXPECT_EQ(21, day.counts.adverts);
  EXPECT_EQ(0, day.counts.withoutAudio);
  EXPECT_EQ(1, day.counts.mismatches);
  EXPECT_EQ(std::vector<std::string>{"10:30"}, day.mismatchTimes);
  ASSERT_EQ(2U, day.warnings.size());
  EXPECT_EQ("midnight", day.warnings[0].kind);
  EXPECT_EQ(1, day.warnings[0].split);
  EXPECT_EQ("a break at \"00:00\"", day.warnings[0].text);
  EXPECT_EQ(0, day.warnings[1].split);
  EXPECT_EQ("no log", report.days[1].trouble);
  EXPECT_TRUE(report.days[1].noLogYet);
  EXPECT_EQ(2, report.days[1].code);
}

TEST(ReportReader, AMismatchWithoutATimeIsShownAsTheResultsWindowShowsIt) {
  const ReportReading reading = ReadOneReport(Changed("/days/0/mismatches/0/time", nullptr));
  ASSERT_TRUE(reading.report) << reading.failure;
  EXPECT_EQ(std::vector<std::string>{"--:--"}, reading.report->days[0].mismatchTimes);
}

TEST(ReportReader, FieldsOfANewerProgramArePassedOver) {
  const Json extra = {{"days", {1, {{"schema", 9}}}}, {"code", "x"}};
  for (const char* place : {"/new", "/days/0/new", "/days/0/counts/new", "/days/0/warnings/0/new",
                            "/days/0/mismatches/0/new"}) {
    EXPECT_TRUE(ReadOneReport(Changed(place, extra)).report) << place;
  }
}

TEST(ReportReader, WhatIsWrongIsOneClearReason) {
  const struct {
    const char* place;
    Json value;
    const char* reason;
  } cases[] = {
      {"/program", "other", "\"program\" is not \"logcheck\""},
      {"/schema", 2, "\"schema\" is 2, and this program reads 1"},
      {"/schema", "1", "\"schema\" is of another type"},
      {"/schema", 1.0, "\"schema\" is of another type"},
      {"/station", nullptr, "\"station\" is of another type"},
      {"/checkedAt", "yesterday", "\"checkedAt\" is no time of the form YYYY-MM-DDTHH:MM:SSZ"},
      {"/checkedAt", "2027-01-14T24:00:00Z",
       "\"checkedAt\" is no time of the form YYYY-MM-DDTHH:MM:SSZ"},
      {"/code", 3, "\"code\" is not 0, 1 or 2"},
      {"/code", -1, "\"code\" is not 0, 1 or 2"},
      {"/code", 18446744073709551615U, "\"code\" is of another type"},
      {"/code", 0, "its code is not the greatest of its days'"},
      {"/days", Json::array(), "has no day"},
      {"/days", Json::object(), "\"days\" is of another type"},
      {"/days/0", 5, "a list holds something else than objects"},
      {"/days/0", Json::array(), "a list holds something else than objects"},
      {"/days/0/date", "2027-02-29", "day 1: \"date\" is no date of the form YYYY-MM-DD"},
      {"/days/0/date", "0099-01-01", "day 1: \"date\" is no date of the form YYYY-MM-DD"},
      {"/days/1/date", "2027-01-15", "day 2: \"date\" is not behind the day before it"},
      {"/days/0/code", 2, "day 1: its code does not fit its trouble"},
      {"/days/1/code", 0, "day 2: its code does not fit its trouble"},
      {"/days/1/trouble", "", "day 2: \"trouble\" is empty"},
      {"/days/1/noLogYet", "no", "day 2: \"noLogYet\" is of another type"},
      {"/days/0/counts", nullptr, "day 1: \"counts\" is of another type"},
      {"/days/0/counts/breaks", -1, "day 1: \"breaks\" is below 0"},
      {"/days/0/counts/mismatches", 2, "day 1: it counts other mismatches than it lists"},
      {"/days/0/warnings/0/split", 11, "day 1: \"split\" is not 1 to 10"},
      {"/days/0/warnings/0/text", Json::array({"x"}), "day 1: \"text\" is of another type"},
      {"/days/0/mismatches/0/time", 3, "day 1: \"time\" is of another type"},
  };
  for (const auto& wrong : cases) {
    const ReportReading reading = ReadOneReport(Changed(wrong.place, wrong.value));
    EXPECT_FALSE(reading.report) << wrong.place;
    EXPECT_EQ(wrong.reason, reading.failure) << wrong.place << " " << wrong.value;
  }
}

TEST(ReportReader, AMissingFieldIsNamed) {
  const struct {
    const char* place;
    std::vector<const char*> names;
    const char* where;
  } objects[] = {
      {"", {"program", "schema", "station", "settings", "checkedAt", "code", "days"}, ""},
      {"/days/0", {"date", "code", "counts", "warnings", "mismatches"}, "day 1: "},
      {"/days/0/counts", {"breaks", "adverts", "withoutAudio", "mismatches"}, "day 1: "},
      {"/days/0/warnings/1", {"kind", "split", "text"}, "day 1: "},
      {"/days/0/mismatches/0", {"time"}, "day 1: "},
      {"/days/1", {"date", "code", "noLogYet", "warnings"}, "day 2: "},
  };
  for (const auto& object : objects) {
    for (const char* name : object.names) {
      EXPECT_EQ(std::string(object.where) + "has no \"" + name + '"',
                ReadOneReport(Without(object.place, name)).failure);
    }
  }
}

TEST(ReportReader, AFieldThatStandsTwiceIsRefused) {
  std::string twice = Sample();
  twice.insert(1, "\"code\": 0,");
  EXPECT_EQ("\"code\" stands twice", ReadOneReport(twice).failure);
}

TEST(ReportReader, WhatIsCutOffAnywhereIsSaid) {
  const std::string whole = Json::parse(Sample()).dump();
  for (size_t length = 0; length < whole.size(); ++length) {
    const ReportReading reading = ReadOneReport(whole.substr(0, length));
    EXPECT_FALSE(reading.report);
    EXPECT_EQ("is cut off at byte " + std::to_string(length + 1), reading.failure);
  }
}

TEST(ReportReader, OtherBytesAreNoReport) {
  const struct {
    std::string bytes;
    const char* reason;
  } cases[] = {
      {"Station: x\n", "is no JSON at byte 1"},
      {std::string("\x7F"
                   "ELF\0\1",
                   6),
       "is no JSON at byte 1"},
      {"{\"station\": \"\xE9\"}", "is no JSON at byte 15"},
      {"{\"code\": 1e999}", "is no JSON at byte 14"},
      {Sample() + "x", "is no JSON at byte 1"},
      {"3", "is no report"},
      {"{}", "has no \"program\""},
      {"[]", "is a list without a report"},
      {"[[]]", "report 1: is no report"},
      {"[" + Sample() + "," + Sample() + "]", "is a list"},
  };
  for (const auto& other : cases) {
    const std::string failure = ReadOneReport(other.bytes).failure;
    EXPECT_EQ(0U, failure.find(other.reason)) << failure << " for " << other.bytes.substr(0, 20);
  }
}

TEST(ReportReader, TheLimitsAreKept) {
  const std::string deep(100000, '[');
  EXPECT_EQ("is nested deeper than 16", ReadOneReport("{\"x\":" + deep).failure);
  EXPECT_TRUE(
      ReadOneReport(Changed("/new", Json::parse(std::string(15, '[') + std::string(15, ']'))))
          .report);
  EXPECT_TRUE(ReadOneReport(Changed("/station", std::string(900000, 'x'))).report);
  EXPECT_EQ("holds a value of more than 1 MiB",
            ReadOneReport(Changed("/station", std::string(1200000, 'x'))).failure);
  // A name, a number or blanks without end are no better.
  for (const char filler : {'1', ' '}) {
    EXPECT_EQ("holds a value of more than 1 MiB",
              ReadOneReport("{\"code\":" + std::string(1200000, filler)).failure);
  }
  const std::string warning =
      R"({"kind": "station", "split": null, "text": ")" + std::string(900000, 'x') + "\"},";
  EXPECT_TRUE(ReadOneReport(With(Repeated(warning, 18), "{\"kind\"")).report);
  EXPECT_EQ("day 1: holds more than 16 MiB of days and warnings",
            ReadOneReport(With(Repeated(warning, 19), "{\"kind\"")).failure);
}

TEST(ReportReader, DetailsThatAreNotKeptCostNoLimit) {
  const std::string detail = "\"" + std::string(900000, 'x') + "\",";
  EXPECT_TRUE(
      ReadOneReport(With("\"new\": [" + Repeated(detail, 20) + "0], ", "\"counts\"")).report);
}

TEST(ReportReader, AListIsReadReportByReportHoweverTheBytesCome) {
  const std::string list = "[" + Sample() + "," + Changed("/schema", 7) + ",null," + Sample() + "]";
  for (const size_t atOnce : {size_t{1}, size_t{7}, size_t{70000}, list.size()}) {
    const std::vector<ReportReading> readings = ReadAll(list, atOnce);
    ASSERT_EQ(4U, readings.size());
    EXPECT_TRUE(readings[0].report);
    EXPECT_EQ("report 2: \"schema\" is 7, and this program reads 1", readings[1].failure);
    EXPECT_EQ("report 3: is no report", readings[2].failure);
    ASSERT_TRUE(readings[3].report);
    EXPECT_EQ(2U, readings[3].report->days.size());
  }
}

TEST(ReportReader, AListThatBreaksOffKeepsWhatCameBefore) {
  const std::string list = "[" + Sample() + "," + Sample();
  const std::vector<ReportReading> readings = ReadAll(list.substr(0, list.size() - 9), 100);
  ASSERT_EQ(2U, readings.size());
  EXPECT_TRUE(readings[0].report);
  EXPECT_EQ("report 2: is cut off at byte " + std::to_string(list.size() - 8), readings[1].failure);
}

TEST(ReportReader, ATooLongListEndsWithAReason) {
  std::string list = "[";
  for (size_t i = 0; i < kMostReportsInAList; ++i) list += "0,";
  const std::vector<ReportReading> readings = ReadAll(list + "0]", list.size());
  ASSERT_EQ(kMostReportsInAList + 1, readings.size());
  EXPECT_EQ("report 100001: is a list of more than 100000 reports", readings.back().failure);
}

std::string FailureOfFile(const std::string& path) {
  std::string failure = "none";
  ReadReportFile(path, [&](ReportReading&& reading) { failure = reading.failure; });
  return failure;
}

TEST(ReportReader, AFileIsReadOrSaidNotToBe) {
  const TempFolder folder;
  folder.WriteFile("a.json", Sample());
  EXPECT_EQ("", FailureOfFile(folder.Path("a.json")));
  EXPECT_EQ("can't be read: File not found", FailureOfFile(folder.Path("b.json")));
  EXPECT_NE("", FailureOfFile(folder.Path()));
}

TEST(ReportReader, AReadThatFailsIsOneFailureWhicheverItIs) {
  const TempFolder folder;
  folder.WriteFile("a.json", Sample());
  for (const char* call : {"Files.FreeFile", "Files.OpenForInput", "Files.Peek"}) {
    ScriptedPlatform platform;
    platform.script.FailNamed(call, 1, kDeviceIoError);
    EXPECT_EQ("can't be read: Device I/O error", FailureOfFile(folder.Path("a.json"))) << call;
  }
}

TEST(IsoDates, ADateIsTenCharactersAndATimeTwenty) {
  EXPECT_EQ(kDay, ReadIsoDate("2027-01-15"));
  EXPECT_EQ(kDay + 0.5, ReadIsoTime("2027-01-15T12:00:00Z"));
  EXPECT_EQ(0, ReadIsoDate("1899-12-30"));
  EXPECT_EQ(-1.25, ReadIsoTime("1899-12-29T06:00:00Z"));
  for (const char* text : {"", "2027-1-15", "2027-13-01", "2027-00-01", "2027-01-32", "2027-01--1",
                           "2027-01-1x", "2027/01/15", "27-01-2015"}) {
    EXPECT_FALSE(ReadIsoDate(text)) << text;
  }
  for (const char* text : {"2027-01-15", "2027-01-15T12:00:00", "2027-01-15 12:00:00Z",
                           "2027-01-15T12:60:00Z", "2027-01-15T12:00:60Z", "2027-01-15T-1:00:00Z",
                           "2027-02-30T12:00:00Z", "2027-01-15T12-00:00Z"}) {
    EXPECT_FALSE(ReadIsoTime(text)) << text;
  }
}

}  // namespace
}  // namespace logchecker
