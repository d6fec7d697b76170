#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

#include "common/DatePicture.h"
#include "common/PathText.h"
#include "common/TextHelpers.h"
#include "common/VersionData.h"
#include "headless/JsonText.h"
#include "headless/Reports.h"
#include "headless/Verdict.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

using Json = nlohmann::ordered_json;

// Seconds in single precision as the shortest decimal that means them; null for no finite number.
Json Seconds(float seconds) {
  if (!std::isfinite(seconds)) return nullptr;
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, seconds).ptr;
  double value = 0;
  std::from_chars(text, end, value);
  return value;
}

Json Text(const std::string& stationText) { return ToUtf8(stationText); }

Json SplitJson(const SplitReport& split) {
  Json silent = Json::array();
  for (const SilentAdvert& advert : split.silentAdverts) {
    silent.push_back({{"row", advert.row},
                      {"time", Text(advert.time)},
                      {"cart", advert.cart},
                      {"description", Text(advert.description)},
                      {"reference", Text(advert.reference)},
                      {"position", std::stoll(advert.position)}});
  }
  return {{"number", split.number},
          {"name", Text(split.name)},
          {"log", Text(ShownPath(split.logPath))},
          {"loaded", split.loaded},
          {"breaks", split.breaks},
          {"adverts", split.adverts},
          {"withoutAudio", split.silentAdverts.size()},
          {"cartsWithoutAudio", silent}};
}

Json LengthsJson(const BreakMismatch& mismatch, const ListItem& row) {
  Json lengths = Json::array();
  for (size_t i = 0; i < mismatch.Lengths.size(); ++i) {
    if (!mismatch.Lengths[i].found) {
      lengths.push_back(nullptr);
      continue;
    }
    lengths.push_back({{"seconds", Seconds(mismatch.Lengths[i].seconds)},
                       {"text", Text(std::string(Trim(row.ListSubItems[i].text)))}});
  }
  return lengths;
}

Json AdvertsJson(const BreakAdverts& splits) {
  Json json = Json::array();
  for (const auto& adverts : splits) {
    if (!adverts) {
      json.push_back(nullptr);
      continue;
    }
    Json list = Json::array();
    for (const AdvertReport& advert : *adverts) {
      list.push_back({{"row", advert.row},
                      {"cart", advert.cart},
                      {"description", Text(advert.description)},
                      {"reference", Text(advert.reference)},
                      {"length", Seconds(advert.length)},
                      {"audio", advert.audio}});
    }
    json.push_back(std::move(list));
  }
  return json;
}

Json MismatchJson(const BreakMismatch& mismatch, const ListItem& row, const BreakAdverts& adverts) {
  Json json;
  if (HasNoTime(mismatch)) {
    json = {{"seconds", nullptr}, {"time", nullptr}, {"reason", kNotCompared}};
  } else {
    json = {{"seconds", Seconds(mismatch.Time)}, {"time", Text(row.text)}};
  }
  json["lengths"] = LengthsJson(mismatch, row);
  json["adverts"] = AdvertsJson(adverts);
  return json;
}

Json WarningsJson(const DayReport& day) {
  Json json = Json::array();
  for (const Warning& warning : day.warnings) {
    json.push_back({{"kind", NameOf(warning.kind)},
                    {"split", warning.split > 0 ? Json(warning.split) : Json(nullptr)},
                    {"text", Text(warning.text)}});
  }
  return json;
}

Json CountsJson(const DayReport& day) {
  int64_t breaks = 0;
  int64_t adverts = 0;
  size_t withoutAudio = 0;
  for (const SplitReport& split : day.splits) {
    breaks += split.breaks;
    adverts += split.adverts;
    withoutAudio += split.silentAdverts.size();
  }
  return {{"breaks", breaks},
          {"adverts", adverts},
          {"withoutAudio", withoutAudio},
          {"mismatches", day.mismatches.size()},
          {"warnings", day.warnings.size()}};
}

Json DayJson(const DayReport& day, const std::vector<WarningKind>& accepted) {
  Json json = {{"date", IsoDate(day.day)}, {"code", CodeOf(day, accepted)}};
  if (!day.trouble.empty()) {
    json["trouble"] = Text(day.trouble);
    json["noLogYet"] = day.noLogYet;
    json["warnings"] = WarningsJson(day);
    return json;
  }
  json["toleranceSeconds"] = day.toleranceMS / 1000.0;
  json["counts"] = CountsJson(day);
  json["splits"] = Json::array();
  for (const SplitReport& split : day.splits) json["splits"].push_back(SplitJson(split));
  json["warnings"] = WarningsJson(day);
  json["mismatches"] = Json::array();
  for (size_t i = 0; i < day.mismatches.size(); ++i) {
    json["mismatches"].push_back(
        MismatchJson(day.mismatches[i], day.results.ListItems[i], day.adverts[i]));
  }
  return json;
}

}  // namespace

std::string JsonReport(const CheckReport& report) {
  Json json = {{"program", "logcheck"},
               {"version", kVersion},
               {"schema", kJsonSchema},
               {"station", Text(report.station)},
               {"settings", Text(ShownPath(report.settings))},
               {"checkedAt", report.checkedAt},
               {"code", CodeOf(report.days, report.accepted)},
               {"days", Json::array()}};
  for (const DayReport& day : report.days) json["days"].push_back(DayJson(day, report.accepted));
  return JsonText(json);
}

}  // namespace logchecker
