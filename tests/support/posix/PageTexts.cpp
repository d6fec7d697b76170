#include "tests/support/posix/PageTexts.h"

#include <optional>
#include <vector>

namespace logchecker {

namespace {

constexpr int32_t kDay = 46402;  // 2027-01-15

SplitReport Split(int16_t number, const std::function<std::string()>& text) {
  SplitReport split;
  split.number = number;
  split.name = text();
  split.logPath = text();
  split.loaded = number != 2;
  split.breaks = 2;
  split.adverts = 2;
  split.silentAdverts = {{3, "10:30", 77, text(), text(), "130"}};
  split.breakList = {{3600, 10.0F, 1, 1, 0, 0}, {37800, 20.5F, 3, 1, 1, 0}};
  return split;
}

AdvertReport Advert(bool audio, const std::function<std::string()>& text) {
  AdvertReport advert;
  advert.row = 3;
  advert.cart = 77;
  advert.description = text();
  advert.reference = text();
  advert.audio = audio;
  advert.length = audio ? 20.5F : 0.0F;
  return advert;
}

}  // namespace

CheckReport ReportWithTexts(const std::function<std::string()>& text) {
  DayReport day;
  day.day = kDay;
  day.toleranceMS = 500;
  for (const int16_t number : {1, 2, 3}) day.splits.push_back(Split(number, text));
  for (const WarningKind kind :
       {WarningKind::kSilent, WarningKind::kMidnight, WarningKind::kPassedOver,
        WarningKind::kMissingLog, WarningKind::kStation}) {
    day.warnings.push_back({kind, 1, text()});
  }
  day.results.ColumnHeaders = {{"Time"}, {"1"}, {"2"}, {"3"}};
  day.results.ListItems = {{"t37800", "10:30", {{"  :20.50"}, {"Not Found"}, {"  :00.00"}}}};
  day.mismatches = {{37800, {{true, 20.5F}, {false, 0}, {true, 0}}}};
  day.adverts = {{std::vector<AdvertReport>{Advert(true, text)}, std::nullopt,
                  std::vector<AdvertReport>{Advert(false, text)}}};
  DayReport troubled;
  troubled.day = kDay + 1;
  troubled.trouble = "the check stopped: " + text();
  CheckReport report;
  report.station = text();
  report.settings = text();
  report.checkedAt = "2027-01-14T14:03:21Z";
  report.days = {day, troubled};
  return report;
}

bool DifferInTextAlone(const PageTree& one, const PageTree& other) {
  if (one.comments != other.comments || one.elements.size() != other.elements.size()) return false;
  for (size_t i = 0; i < one.elements.size(); ++i) {
    PageElement a = one.elements[i];
    PageElement b = other.elements[i];
    for (PageElement* element : {&a, &b}) {
      for (const char* name : {"aria-label"}) {
        if (element->attributes.count(name) > 0) element->attributes[name] = "text";
      }
    }
    if (a.name != b.name || a.parent != b.parent || a.attributes != b.attributes) return false;
  }
  return true;
}

std::string Harmless(const std::string& stationText) {
  return std::string(stationText.size(), 'x');
}

}  // namespace logchecker
