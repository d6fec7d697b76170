#include "headless/JsonText.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace logchecker {

namespace {

using Json = nlohmann::ordered_json;

constexpr size_t kIndent = 2;

bool IsPlain(const Json& json) { return json.is_primitive() || json.empty(); }

bool IsOneLine(const Json& json) {
  return IsPlain(json) || std::all_of(json.begin(), json.end(), IsPlain);
}

void Write(const Json& json, size_t indent, std::string* text) {
  if (IsPlain(json)) {
    *text += json.dump();
    return;
  }
  const bool oneLine = IsOneLine(json);
  const std::string inner = oneLine ? "" : "\n" + std::string(indent + kIndent, ' ');
  *text += json.is_object() ? '{' : '[';
  const char* separator = "";
  for (auto item = json.begin(); item != json.end(); ++item) {
    *text += separator + inner;
    if (json.is_object()) *text += Json(item.key()).dump() + ": ";
    Write(*item, indent + kIndent, text);
    separator = oneLine ? ", " : ",";
  }
  if (!oneLine) *text += "\n" + std::string(indent, ' ');
  *text += json.is_object() ? '}' : ']';
}

// The library writes these as they are, which is good JSON.
std::string WithControlsEscaped(const std::string& utf8) {
  constexpr char kDelete = '\x7F';
  constexpr char kLead = '\xC2';  // of the characters 0x80 to 0xBF
  constexpr char kLastControl = '\x9F';
  constexpr char kDigits[] = "0123456789abcdef";
  std::string escaped;
  escaped.reserve(utf8.size());
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

std::string JsonText(const Json& json) {
  std::string text;
  Write(json, 0, &text);
  return WithControlsEscaped(text) + "\n";
}

}  // namespace logchecker
