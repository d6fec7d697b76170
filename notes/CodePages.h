// The code pages that rich text is written in.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace logchecker {

struct CodePage {
  int32_t number;
  char16_t upper[128];  // of bytes 0x80 to 0xFF; U+FFFD where there is none
};

inline constexpr size_t kNumberOfCodePages = 15;
extern const CodePage kCodePages[kNumberOfCodePages];

inline constexpr int32_t kWesternCodePage = 1252;

// What a byte means in a code page; a page that is not known is read as the western one.
char32_t CodePointOf(unsigned char byte, int32_t codePage);

// The code page of a font's character set, by the numbers that rich text uses; 0 for one that
// follows the document's own.
int32_t CodePageOfCharset(int32_t charset);

// Adds a code point as UTF-8; one that is none becomes U+FFFD.
void AppendUtf8(std::string& text, char32_t codePoint);

}  // namespace logchecker
