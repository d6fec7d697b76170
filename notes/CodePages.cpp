#include "notes/CodePages.h"

namespace logchecker {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct CharsetPage {
  int32_t charset;
  int32_t codePage;
};

constexpr CharsetPage kCharsets[] = {
    {77, 10000}, {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256},
    {186, 1257}, {204, 1251}, {222, 874},  {238, 1250}, {254, 437},  {255, 850},
};

const CodePage& PageOf(int32_t number) {
  const CodePage* western = nullptr;
  for (const CodePage& page : kCodePages) {
    if (page.number == number) return page;
    if (page.number == kWesternCodePage) western = &page;
  }
  return *western;
}

}  // namespace

char32_t CodePointOf(unsigned char byte, int32_t codePage) {
  return byte < 0x80 ? byte : PageOf(codePage).upper[byte - 0x80];
}

int32_t CodePageOfCharset(int32_t charset) {
  for (const CharsetPage& row : kCharsets) {
    if (row.charset == charset) return row.codePage;
  }
  return 0;
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

}  // namespace logchecker
