#include "headless/WatchLines.h"

#include <nlohmann/json.hpp>

#include "common/DatePicture.h"
#include "headless/Output.h"
#include "platform/Platform.h"

namespace logchecker {

std::string TextLine(const WatchEvent& event) {
  std::string line = FormatDate(Os().clock.Now(), "yyyy-mm-dd hh:nn:ss").value_or("");
  if (event.day != 0) line += " " + IsoDate(event.day);
  return line + " " + FieldText(event.text) + "\n";
}

std::string JsonLine(const WatchEvent& event) {
  using Json = nlohmann::ordered_json;
  Json json = {{"at", FormatDate(Os().clock.UtcNow(), "yyyy-mm-dd\\Thh:nn:ss\\Z").value_or("")},
               {"event", NameOf(event.kind)},
               {"date", event.day != 0 ? Json(IsoDate(event.day)) : Json(nullptr)},
               {"split", event.split != 0 ? Json(event.split) : Json(nullptr)},
               {"time", event.time.empty() ? Json(nullptr) : Json(event.time)}};
  if (event.kind == WatchEventKind::kWarning || event.kind == WatchEventKind::kWarningOver) {
    json["kind"] = NameOf(event.warning);
  }
  json["text"] = FieldText(event.text);
  return json.dump() + "\n";
}

}  // namespace logchecker
