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
inline constexpr int32_t kUtf8CodePage = 65001;

// What a byte means in a code page of single bytes; a page that is not known is read as the western
// one.
char32_t CodePointOf(unsigned char byte, int32_t codePage);

// The code page of a font's character set, by the numbers that rich text uses; 0 for one that
// follows the document's own.
int32_t CodePageOfCharset(int32_t charset);

// Bytes that come one at a time, as the characters of their code page: of single bytes, of pairs
// (932, 936, 949, 950), or UTF-8.
class ByteDecoder {
 public:
  // The characters that the byte completes; none while more bytes are to come. Bytes that are no
  // character become U+FFFD.
  const std::u32string& Take(unsigned char byte, int32_t codePage);
  // What the bytes at hand come to when no more of them follow.
  const std::u32string& End();
  bool HasBegun() const { return !begun_.empty(); }

 private:
  void TakeOfPair(unsigned char byte);
  void TakeOfUtf8(unsigned char byte);

  std::string begun_;  // the first bytes of a character
  int32_t codePage_ = 0;
  std::u32string ready_;
};

}  // namespace logchecker
