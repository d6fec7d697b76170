#include "headless/ReportFields.h"

#include <algorithm>
#include <utility>

#include "headless/IsoDates.h"
#include "headless/Reports.h"
#include "headless/Verdict.h"

namespace logchecker {

namespace {

using Place = ReportPlace;
using Shape = ReportShape;
using Value = ReportValue;

constexpr const char* kNoTime = "--:--";

ReadDay& LastDay(ReadReport& report) { return report.days.back(); }
ReadWarning& LastWarning(ReadReport& report) { return LastDay(report).warnings.back(); }

std::string TakeText(std::string& target, Value& value) {
  target = std::move(value.text);
  return "";
}

std::string TakeCount(int64_t& target, const Value& value) {
  target = value.number;
  return value.number < 0 ? "is below 0" : "";
}

std::string TakeCode(int& target, const Value& value) {
  target = static_cast<int>(value.number);
  return value.number < kAllMatch || value.number > kTrouble ? "is not 0, 1 or 2" : "";
}

std::string TakeProgram(ReadReport&, Value& value) {
  return value.text == "logcheck" ? "" : "is not \"logcheck\"";
}

std::string TakeSchema(ReadReport&, Value& value) {
  if (value.number == kJsonSchema) return "";
  return "is " + std::to_string(value.number) + ", and this program reads " +
         std::to_string(kJsonSchema);
}

std::string TakeCheckedAt(ReadReport& report, Value& value) {
  const std::optional<double> time = ReadIsoTime(value.text);
  if (!time) return "is no time of the form YYYY-MM-DDTHH:MM:SSZ";
  report.checkedAtNumber = *time;
  return TakeText(report.checkedAt, value);
}

std::string TakeDate(ReadReport& report, Value& value) {
  const std::optional<int32_t> day = ReadIsoDate(value.text);
  if (!day) return "is no date of the form YYYY-MM-DD";
  LastDay(report).day = *day;
  const size_t count = report.days.size();
  return count > 1 && report.days[count - 2].day >= *day ? "is not behind the day before it" : "";
}

std::string TakeTrouble(ReadReport& report, Value& value) {
  if (value.text.empty()) return "is empty";
  return TakeText(LastDay(report).trouble, value);
}

std::string TakeSplit(ReadReport& report, Value& value) {
  constexpr int64_t kMost = 10;
  if (value.shape == Shape::kNumber && (value.number < 1 || value.number > kMost)) {
    return "is not 1 to 10";
  }
  LastWarning(report).split = static_cast<int16_t>(value.number);
  return "";
}

std::string TakeMismatchTime(ReadReport& report, Value& value) {
  LastDay(report).mismatchTimes.back() =
      value.shape == Shape::kNull ? kNoTime : std::move(value.text);
  return "";
}

constexpr auto kAlways = ReportField::kAlways;
constexpr auto kWhenChecked = ReportField::kWhenChecked;
constexpr auto kWhenNotChecked = ReportField::kWhenNotChecked;
constexpr auto kSeldom = ReportField::kSeldom;

std::string Nothing(ReadReport&, Value&) { return ""; }

// clang-format off
constexpr ReportField kFields[] = {
    {Place::kReport, "program", Shape::kText, false, kAlways, {}, TakeProgram},
    {Place::kReport, "schema", Shape::kNumber, false, kAlways, {}, TakeSchema},
    {Place::kReport, "station", Shape::kText, false, kAlways, {},
     [](ReadReport& report, Value& value) { return TakeText(report.station, value); }},
    {Place::kReport, "settings", Shape::kText, false, kAlways, {},
     [](ReadReport& report, Value& value) { return TakeText(report.settings, value); }},
    {Place::kReport, "checkedAt", Shape::kText, false, kAlways, {}, TakeCheckedAt},
    {Place::kReport, "code", Shape::kNumber, false, kAlways, {},
     [](ReadReport& report, Value& value) { return TakeCode(report.code, value); }},
    {Place::kReport, "days", Shape::kList, false, kAlways, Place::kDays, Nothing},

    {Place::kDay, "date", Shape::kText, false, kAlways, {}, TakeDate},
    {Place::kDay, "code", Shape::kNumber, false, kAlways, {},
     [](ReadReport& report, Value& value) { return TakeCode(LastDay(report).code, value); }},
    {Place::kDay, "trouble", Shape::kText, false, kSeldom, {}, TakeTrouble},
    {Place::kDay, "noLogYet", Shape::kFlag, false, kWhenNotChecked, {},
     [](ReadReport& report, Value& value) {
       LastDay(report).noLogYet = value.flag;
       return std::string();
     }},
    {Place::kDay, "counts", Shape::kObject, false, kWhenChecked, Place::kCounts, Nothing},
    {Place::kDay, "warnings", Shape::kList, false, kAlways, Place::kWarnings, Nothing},
    {Place::kDay, "mismatches", Shape::kList, false, kWhenChecked, Place::kMismatches, Nothing},

    {Place::kCounts, "breaks", Shape::kNumber, false, kAlways, {},
     [](ReadReport& report, Value& value) { return TakeCount(LastDay(report).counts.breaks, value); }},
    {Place::kCounts, "adverts", Shape::kNumber, false, kAlways, {},
     [](ReadReport& report, Value& value) { return TakeCount(LastDay(report).counts.adverts, value); }},
    {Place::kCounts, "withoutAudio", Shape::kNumber, false, kAlways, {},
     [](ReadReport& report, Value& value) {
       return TakeCount(LastDay(report).counts.withoutAudio, value);
     }},
    {Place::kCounts, "mismatches", Shape::kNumber, false, kAlways, {},
     [](ReadReport& report, Value& value) {
       return TakeCount(LastDay(report).counts.mismatches, value);
     }},

    {Place::kWarning, "kind", Shape::kText, false, kAlways, {},
     [](ReadReport& report, Value& value) { return TakeText(LastWarning(report).kind, value); }},
    {Place::kWarning, "split", Shape::kNumber, true, kAlways, {}, TakeSplit},
    {Place::kWarning, "text", Shape::kText, false, kAlways, {},
     [](ReadReport& report, Value& value) { return TakeText(LastWarning(report).text, value); }},

    {Place::kMismatch, "time", Shape::kText, true, kAlways, {}, TakeMismatchTime},
};
// clang-format on
static_assert(std::size(kFields) <= 32, "the fields that were seen are kept as bits");

bool IsExpected(const ReportField& field, bool checked) {
  return field.expected == kAlways || (field.expected == kWhenChecked && checked) ||
         (field.expected == kWhenNotChecked && !checked);
}

std::string EndOfDay(const ReadDay& day) {
  if (day.trouble.empty() == (day.code == kTrouble)) return "its code does not fit its trouble";
  const auto listed = static_cast<int64_t>(day.mismatchTimes.size());
  if (day.trouble.empty() && day.counts.mismatches != listed) {
    return "it counts other mismatches than it lists";
  }
  return "";
}

std::string EndOfReport(const ReadReport& report) {
  if (report.days.empty()) return "has no day";
  int greatest = kAllMatch;
  for (const ReadDay& day : report.days) greatest = std::max(greatest, day.code);
  return report.code == greatest ? "" : "its code is not the greatest of its days'";
}

}  // namespace

const ReportField* FindReportField(ReportPlace place, std::string_view name) {
  const auto* field = std::find_if(
      std::begin(kFields), std::end(kFields),
      [&](const ReportField& entry) { return entry.place == place && entry.name == name; });
  return field == std::end(kFields) ? nullptr : field;
}

ReportPlace PlaceInList(ReportPlace list) {
  return list == Place::kDays       ? Place::kDay
         : list == Place::kWarnings ? Place::kWarning
                                    : Place::kMismatch;
}

void BeginInReport(ReportPlace place, ReadReport& report) {
  if (place == Place::kDay) report.days.emplace_back();
  if (place == Place::kWarning) LastDay(report).warnings.emplace_back();
  if (place == Place::kMismatch) LastDay(report).mismatchTimes.emplace_back();
}

uint32_t BitOf(const ReportField& field) { return uint32_t{1} << (&field - std::begin(kFields)); }

std::string EndInReport(ReportPlace place, uint32_t seen, const ReadReport& report) {
  const bool checked = report.days.empty() || report.days.back().trouble.empty();
  for (const ReportField& field : kFields) {
    if (field.place == place && (seen & BitOf(field)) == 0 && IsExpected(field, checked)) {
      return std::string("has no \"") + field.name + '"';
    }
  }
  if (place == Place::kDay) return EndOfDay(report.days.back());
  return place == Place::kReport ? EndOfReport(report) : "";
}

}  // namespace logchecker
