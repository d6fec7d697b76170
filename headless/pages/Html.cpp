#include "headless/pages/Html.h"

#include <algorithm>
#include <cstdint>

namespace logchecker {

namespace {

constexpr uint32_t kNoCharacter = 0xFFFD;
constexpr char kEllipsis[] = "\xE2\x80\xA6";

bool IsBetween(uint32_t value, uint32_t first, uint32_t last) {
  return first <= value && value <= last;
}

struct Character {
  uint32_t codePoint = kNoCharacter;
  size_t bytes = 1;  // that it takes up
};

// The first character of a text that is not empty.
Character FirstOf(std::string_view utf8) {
  const auto byteAt = [&](size_t i) {
    return static_cast<uint32_t>(static_cast<unsigned char>(utf8[i]));
  };
  const uint32_t lead = byteAt(0);
  if (lead < 0x80) return {lead, 1};
  const size_t length = IsBetween(lead, 0xC2, 0xDF)   ? 2
                        : IsBetween(lead, 0xE0, 0xEF) ? 3
                        : IsBetween(lead, 0xF0, 0xF4) ? 4
                                                      : 0;
  if (length == 0 || utf8.size() < length) return {};
  uint32_t codePoint = lead & (0xFFU >> (length + 1));
  for (size_t i = 1; i < length; ++i) {
    if ((byteAt(i) & 0xC0U) != 0x80U) return {};
    codePoint = (codePoint << 6U) | (byteAt(i) & 0x3FU);
  }
  constexpr uint32_t kLeastOfLength[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool isCharacter = codePoint >= kLeastOfLength[length] && codePoint <= 0x10FFFF &&
                           !IsBetween(codePoint, 0xD800, 0xDFFF);
  return isCharacter ? Character{codePoint, length} : Character{};
}

bool IsControl(uint32_t codePoint) {
  return codePoint < 0x20 || IsBetween(codePoint, 0x7F, 0x9F) ||
         IsBetween(codePoint, 0xFDD0, 0xFDEF) || (codePoint & 0xFFFEU) == 0xFFFE;
}

// What has no shape of its own, and turns, breaks or hides the text around it.
bool IsUnseen(uint32_t codePoint) {
  return codePoint == 0xAD || codePoint == 0x061C || codePoint == 0x180E ||
         IsBetween(codePoint, 0x200B, 0x200F) || IsBetween(codePoint, 0x2028, 0x202E) ||
         IsBetween(codePoint, 0x2060, 0x206F) || codePoint == 0xFEFF ||
         IsBetween(codePoint, 0xFFF9, 0xFFFB) || IsBetween(codePoint, 0xE0000, 0xE007F);
}

std::string Escape(uint32_t codePoint) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string digits;
  for (; codePoint > 0 || digits.size() < 4; codePoint >>= 4U) {
    digits.insert(digits.begin(), kDigits[codePoint & 0x0FU]);
  }
  return "\\u" + digits;
}

// The entity of a character that is markup; "" for any other.
const char* EntityOf(uint32_t codePoint) {
  switch (codePoint) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return "";
  }
}

void Add(std::string& html, std::string_view bytes, uint32_t codePoint) {
  const std::string_view entity = EntityOf(codePoint);
  if (!entity.empty()) {
    html += entity;
  } else if (codePoint == '\t' || codePoint == '\n' || codePoint == '\r') {
    html += ' ';
  } else if (codePoint == kNoCharacter) {
    html += "\xEF\xBF\xBD";
  } else if (IsControl(codePoint) || IsUnseen(codePoint)) {
    html += Escape(codePoint);
  } else {
    html += bytes;
  }
}

// A character that stands for itself, in one byte: most of any text.
bool IsPlain(char c) {
  return c >= ' ' && c <= '~' && *EntityOf(static_cast<unsigned char>(c)) == '\0';
}

// Where the character at that place begins, or the text's end.
size_t OffsetOf(std::string_view utf8, size_t character) {
  size_t offset = 0;
  for (; character > 0 && offset < utf8.size(); --character) {
    offset += FirstOf(utf8.substr(offset)).bytes;
  }
  return offset;
}

}  // namespace

std::string HtmlText(std::string_view utf8) {
  std::string html;
  html.reserve(utf8.size());
  while (!utf8.empty()) {
    const auto plain =
        static_cast<size_t>(std::find_if_not(utf8.begin(), utf8.end(), IsPlain) - utf8.begin());
    html += utf8.substr(0, plain);
    utf8.remove_prefix(plain);
    if (utf8.empty()) break;
    const Character character = FirstOf(utf8);
    Add(html, utf8.substr(0, character.bytes), character.codePoint);
    utf8.remove_prefix(character.bytes);
  }
  return html;
}

std::string Isolated(std::string_view utf8) { return "<bdi>" + HtmlText(utf8) + "</bdi>"; }

std::string Shortened(std::string_view utf8, size_t mostCharacters) {
  if (OffsetOf(utf8, mostCharacters) == utf8.size()) return std::string(utf8);
  return std::string(utf8.substr(0, OffsetOf(utf8, mostCharacters - 1))) + kEllipsis;
}

std::string Folded(std::string_view utf8, size_t mostCharacters) {
  const std::string beginning = Shortened(utf8, mostCharacters);
  if (beginning.size() == utf8.size()) return Isolated(utf8);
  return "<details><summary>" + Isolated(beginning) + "</summary>" +
         Isolated(Shortened(utf8, kLongestText)) + "</details>";
}

}  // namespace logchecker
