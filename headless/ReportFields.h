// What stands where in a JSON report.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "headless/ReportReader.h"

namespace logchecker {

// The containers that are looked into.
enum class ReportPlace {
  kReport,
  kDays,
  kDay,
  kCounts,
  kWarnings,
  kWarning,
  kMismatches,
  kMismatch
};

enum class ReportShape { kNull, kFlag, kNumber, kFraction, kText, kObject, kList };

// A value as the parser tells it.
struct ReportValue {
  ReportShape shape = ReportShape::kNull;
  bool flag = false;
  int64_t number = 0;
  std::string text;
};

struct ReportField {
  ReportPlace place;
  const char* name;
  ReportShape shape;
  bool mayBeNull;
  enum { kAlways, kWhenChecked, kWhenNotChecked, kSeldom } expected;
  ReportPlace inside;  // of an object or a list
  // Puts the value into the report's last day, warning or mismatch; why it can't be, or "".
  std::string (*take)(ReadReport& report, ReportValue& value);
};

// The field of an object; null for one that is passed over.
const ReportField* FindReportField(ReportPlace place, std::string_view name);

// What a list holds: the place of its objects.
ReportPlace PlaceInList(ReportPlace list);

// Adds the day, warning or mismatch that is about to be read.
void BeginInReport(ReportPlace place, ReadReport& report);

// The fields of an object that have been seen, as bits, by FindReportField's address.
uint32_t BitOf(const ReportField& field);

// What is wrong with an object that has been read to its end, or "".
std::string EndInReport(ReportPlace place, uint32_t seen, const ReadReport& report);

}  // namespace logchecker
