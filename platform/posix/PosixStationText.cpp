// Windows-1252, the code page of the stations, to UTF-8 and back.
#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr size_t kUpperHalf = 0x80;

// The characters of 0x80 to 0x9F; five places are empty and map to the control characters.
constexpr std::array<uint16_t, 32> kC1 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

uint32_t CodePointOf(unsigned char c) {
  return c >= kUpperHalf && c < kUpperHalf + kC1.size() ? kC1[c - kUpperHalf] : c;
}

bool FromCodePoint(uint32_t codePoint, char* c) {
  if (codePoint < kUpperHalf || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
    *c = static_cast<char>(codePoint);
    return true;
  }
  for (size_t i = 0; i < kC1.size(); ++i) {
    if (kC1[i] == codePoint) {
      *c = static_cast<char>(kUpperHalf + i);
      return true;
    }
  }
  return false;
}

// Takes one code point off the text; false, and one byte less, where the bytes are malformed.
bool TakeCodePoint(std::string_view* text, uint32_t* codePoint) {
  const auto byteAt = [&](size_t i) { return static_cast<unsigned char>((*text)[i]); };
  const unsigned char first = byteAt(0);
  size_t length = 1;
  uint32_t least = 0;
  *codePoint = first;
  if (first >= 0xF0 && first < 0xF8) {
    length = 4;
    least = 0x10000;
    *codePoint = first & 0x07U;
  } else if (first >= 0xE0 && first < 0xF0) {
    length = 3;
    least = 0x800;
    *codePoint = first & 0x0FU;
  } else if (first >= 0xC0 && first < 0xE0) {
    length = 2;
    least = 0x80;
    *codePoint = first & 0x1FU;
  } else if (first >= kUpperHalf) {
    text->remove_prefix(1);
    return false;
  }
  bool wellFormed = text->size() >= length;
  for (size_t i = 1; wellFormed && i < length; ++i) {
    wellFormed = (byteAt(i) & 0xC0U) == 0x80U;
    *codePoint = (*codePoint << 6U) | (byteAt(i) & 0x3FU);
  }
  wellFormed = wellFormed && *codePoint >= least;
  text->remove_prefix(wellFormed ? length : 1);
  return wellFormed;
}

// Such text is the same in both.
bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < kUpperHalf; });
}

}  // namespace

std::string ToUtf8(std::string_view stationText) {
  if (IsAscii(stationText)) return std::string(stationText);
  std::string utf8;
  utf8.reserve(stationText.size());
  for (const char c : stationText) {
    const uint32_t codePoint = CodePointOf(static_cast<unsigned char>(c));
    if (codePoint < kUpperHalf) {
      utf8 += c;
    } else if (codePoint < 0x800) {
      utf8 += static_cast<char>(0xC0U | (codePoint >> 6U));
      utf8 += static_cast<char>(0x80U | (codePoint & 0x3FU));
    } else {
      utf8 += static_cast<char>(0xE0U | (codePoint >> 12U));
      utf8 += static_cast<char>(0x80U | ((codePoint >> 6U) & 0x3FU));
      utf8 += static_cast<char>(0x80U | (codePoint & 0x3FU));
    }
  }
  return utf8;
}

bool FromUtf8(std::string_view utf8, std::string* stationText) {
  if (IsAscii(utf8)) {
    stationText->assign(utf8);
    return true;
  }
  stationText->clear();
  bool whole = true;
  while (!utf8.empty()) {
    uint32_t codePoint = 0;
    char c = '?';
    if (!TakeCodePoint(&utf8, &codePoint) || !FromCodePoint(codePoint, &c)) {
      c = '?';
      whole = false;
    }
    *stationText += c;
  }
  return whole;
}

bool FromArgument(std::string_view argument, std::string* stationText) {
  return FromUtf8(argument, stationText);
}

// The code page's empty places lead to control characters too.
std::string WithoutControls(std::string_view stationText) {
  constexpr uint32_t kDelete = 0x7F;
  constexpr uint32_t kLastControl = 0x9F;
  std::string text(stationText);
  for (char& c : text) {
    const uint32_t codePoint = CodePointOf(static_cast<unsigned char>(c));
    const bool control = codePoint < ' ' || (codePoint >= kDelete && codePoint <= kLastControl);
    if (control && c != '\n' && c != '\t') c = ' ';
  }
  return text;
}

std::string ToUpper(std::string_view stationText) {
  std::string upper(stationText);
  for (char& c : upper) {
    const auto code = static_cast<unsigned char>(c);
    const bool hasCapital32Below =
        (code >= 'a' && code <= 'z') || (code >= 0xE0 && code != 0xF7 && code != 0xFF);
    const bool hasCapital16Below = code == 0x9A || code == 0x9C || code == 0x9E;
    if (hasCapital32Below) {
      c = static_cast<char>(code - 32);
    } else if (hasCapital16Below) {
      c = static_cast<char>(code - 16);
    } else if (code == 0xFF) {
      c = static_cast<char>(0x9F);
    }
  }
  return upper;
}

// Each small letter is found by its capital: the table above is the only one.
std::string ToLower(std::string_view stationText) {
  std::string lower(stationText);
  for (char& c : lower) {
    for (const int distance : {32, 16, 96}) {
      const char small = static_cast<char>(static_cast<unsigned char>(c) + distance);
      if (small != c && ToUpper(std::string_view(&small, 1))[0] == c) c = small;
    }
  }
  return lower;
}

}  // namespace logchecker
