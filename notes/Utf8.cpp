#include "notes/Utf8.h"

#include <algorithm>

namespace logchecker {

namespace {

unsigned char ByteAt(std::string_view bytes, size_t place) {
  return static_cast<unsigned char>(bytes[place]);
}

bool IsTail(unsigned char byte) { return (byte & 0xC0U) == 0x80; }

// How many of the first bytes can be the beginning of one character.
size_t LengthOfBeginning(std::string_view bytes) {
  const size_t most = std::min(Utf8Length(ByteAt(bytes, 0)), bytes.size());
  size_t length = most > 0 ? 1 : 0;
  while (length > 0 && length < most && IsTail(ByteAt(bytes, length))) ++length;
  return length;
}

size_t LengthOfAscii(std::string_view bytes) {
  const auto* const end = std::find_if(
      bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
  return static_cast<size_t>(end - bytes.begin());
}

}  // namespace

size_t Utf8Length(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return 2;
  if (first >= 0xE0 && first <= 0xEF) return 3;
  return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

char32_t Utf8Character(std::string_view bytes) {
  if (bytes.empty() || Utf8Length(ByteAt(bytes, 0)) != bytes.size()) return kReplacement;
  if (bytes.size() == 1) return ByteAt(bytes, 0);
  char32_t character = ByteAt(bytes, 0) & (0x7FU >> bytes.size());
  for (size_t i = 1; i < bytes.size(); ++i) {
    if (!IsTail(ByteAt(bytes, i))) return kReplacement;
    character = character << 6U | (ByteAt(bytes, i) & 0x3FU);
  }
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  const bool held = character >= kLeast[bytes.size()] && character <= 0x10FFFF && !surrogate;
  return held ? character : kReplacement;
}

bool IsUtf8(std::string_view bytes) {
  constexpr std::string_view kOwnReplacement = "\xEF\xBF\xBD";
  while (!bytes.empty()) {
    const size_t plain = LengthOfAscii(bytes);
    bytes.remove_prefix(plain);
    if (plain > 0) continue;
    const size_t whole = Utf8Length(ByteAt(bytes, 0));
    if (whole == 0 || whole > bytes.size()) return false;
    const std::string_view character = bytes.substr(0, whole);
    if (Utf8Character(character) == kReplacement && character != kOwnReplacement) return false;
    bytes.remove_prefix(whole);
  }
  return true;
}

std::string_view WithoutCutCharacter(std::string_view utf8) {
  constexpr size_t kLongest = 4;
  for (size_t length = 1; length <= std::min(kLongest, utf8.size()); ++length) {
    const unsigned char byte = ByteAt(utf8, utf8.size() - length);
    if (IsTail(byte)) continue;
    return Utf8Length(byte) > length ? utf8.substr(0, utf8.size() - length) : utf8;
  }
  return utf8;
}

size_t CountCharacters(std::string_view utf8) {
  return static_cast<size_t>(std::count_if(
      utf8.begin(), utf8.end(), [](char c) { return !IsTail(static_cast<unsigned char>(c)); }));
}

std::string_view FirstCharacters(std::string_view utf8, size_t most) {
  if (utf8.size() <= most) return utf8;
  size_t end = 0;
  for (size_t count = 0; end < utf8.size(); ++end) {
    if (!IsTail(ByteAt(utf8, end)) && count++ == most) break;
  }
  return utf8.substr(0, end);
}

void AppendUtf8(std::string& text, char32_t codePoint) {
  const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
  if (surrogate || codePoint > 0x10FFFF) codePoint = kReplacement;
  const auto add = [&](char32_t bits) { text += static_cast<char>(bits); };
  const auto tail = [&](unsigned shift) { add(0x80 | (codePoint >> shift & 0x3F)); };
  if (codePoint < 0x80) {
    add(codePoint);
  } else if (codePoint < 0x800) {
    add(0xC0 | codePoint >> 6);
    tail(0);
  } else if (codePoint < 0x10000) {
    add(0xE0 | codePoint >> 12);
    tail(6);
    tail(0);
  } else {
    add(0xF0 | codePoint >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

std::string CleanUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const size_t plain = LengthOfAscii(bytes);
    text += bytes.substr(0, plain);
    bytes.remove_prefix(plain);
    if (bytes.empty()) break;
    const size_t length = std::max<size_t>(LengthOfBeginning(bytes), 1);
    AppendUtf8(text, Utf8Character(bytes.substr(0, length)));
    bytes.remove_prefix(length);
  }
  return text;
}

std::string FromUtf16(std::string_view bytes, bool bigEndian) {
  std::string text;
  char32_t high = 0;
  const auto end = [&] {
    if (high != 0) AppendUtf8(text, kReplacement);
    high = 0;
  };
  for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const char32_t first = ByteAt(bytes, i);
    const char32_t second = ByteAt(bytes, i + 1);
    const char32_t unit = bigEndian ? first << 8U | second : second << 8U | first;
    if (high != 0 && unit >= 0xDC00 && unit <= 0xDFFF) {
      AppendUtf8(text, 0x10000 + ((high - 0xD800) << 10U) + (unit - 0xDC00));
      high = 0;
      continue;
    }
    end();
    if (unit >= 0xD800 && unit <= 0xDBFF) {
      high = unit;
    } else {
      AppendUtf8(text, unit);
    }
  }
  end();
  if (bytes.size() % 2 != 0) AppendUtf8(text, kReplacement);
  return text;
}

}  // namespace logchecker
