#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

#include "common/DatePicture.h"
#include "common/TextHelpers.h"
#include "common/VersionData.h"
#include "headless/Reports.h"
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
  return {{"number", split.number},     {"name", Text(split.name)}, {"log", Text(split.logPath)},
          {"loaded", split.loaded},     {"breaks", split.breaks},   {"adverts", split.adverts},
          {"cartsWithoutAudio", silent}};
}

Json MismatchJson(const BreakMismatch& mismatch, const ListItem& row) {
  Json lengths = Json::array();
  for (size_t i = 0; i < mismatch.Lengths.size(); ++i) {
    if (!mismatch.Lengths[i].found) {
      lengths.push_back(nullptr);
      continue;
    }
    lengths.push_back({{"seconds", Seconds(mismatch.Lengths[i].seconds)},
                       {"text", Text(std::string(Trim(row.ListSubItems[i].text)))}});
  }
  return {{"seconds", Seconds(mismatch.Time)}, {"time", Text(row.text)}, {"lengths", lengths}};
}

Json DayJson(const DayReport& day) {
  Json json = {{"date", IsoDate(day.day)}};
  if (!day.trouble.empty()) {
    json["trouble"] = Text(day.trouble);
    return json;
  }
  json["toleranceSeconds"] = day.toleranceMS / 1000.0;
  json["splits"] = Json::array();
  for (const SplitReport& split : day.splits) json["splits"].push_back(SplitJson(split));
  json["mismatches"] = Json::array();
  for (size_t i = 0; i < day.mismatches.size(); ++i) {
    json["mismatches"].push_back(MismatchJson(day.mismatches[i], day.results.ListItems[i]));
  }
  return json;
}

// The library writes these as they are, which is good JSON; but a terminal that shows it would obey
// them.
std::string WithControlsEscaped(const std::string& utf8) {
  constexpr char kDelete = '\x7F';
  constexpr char kLead = '\xC2';  // of the characters 0x80 to 0xBF
  constexpr char kLastControl = '\x9F';
  constexpr char kDigits[] = "0123456789abcdef";
  std::string escaped;
  const auto escape = [&](char c) {
    const auto code = static_cast<unsigned char>(c);
    escaped += "\\u00";
    escaped += kDigits[code >> 4U];
    escaped += kDigits[code & 0x0FU];
  };
  for (size_t i = 0; i < utf8.size(); ++i) {
    if (utf8[i] == kDelete) {
      escape(utf8[i]);
    } else if (utf8[i] == kLead && utf8[i + 1] <= kLastControl) {
      escape(utf8[++i]);
    } else {
      escaped += utf8[i];
    }
  }
  return escaped;
}

}  // namespace

std::string JsonReport(const std::vector<DayReport>& days) {
  Json json = {{"program", "logcheck"}, {"version", kVersion}, {"days", Json::array()}};
  for (const DayReport& day : days) json["days"].push_back(DayJson(day));
  return WithControlsEscaped(json.dump(2)) + "\n";
}

}  // namespace logchecker
