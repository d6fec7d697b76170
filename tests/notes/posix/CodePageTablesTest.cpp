// The tables of the code pages, byte by byte, beside those of the C library.
#include <gtest/gtest.h>
#include <iconv.h>

#include <cstring>
#include <optional>
#include <string>

#include "notes/CodePages.h"

namespace logchecker {
namespace {

// What the C library takes a byte for; none when it does not know the page.
std::optional<char32_t> CodePointByIconv(unsigned char byte, const std::string& page) {
  const iconv_t converter = iconv_open("UTF-32LE", page.c_str());
  if (converter == reinterpret_cast<iconv_t>(-1)) return std::nullopt;
  char in = static_cast<char>(byte);
  char out[16] = {};
  char* from = &in;
  char* to = out;
  size_t fromLeft = 1;
  size_t toLeft = sizeof out;
  const bool known = iconv(converter, &from, &fromLeft, &to, &toLeft) != static_cast<size_t>(-1);
  // A letter that an accent could follow comes only now.
  iconv(converter, nullptr, nullptr, &to, &toLeft);
  iconv_close(converter);
  if (!known) return 0xFFFD;
  uint32_t codePoint = 0;
  std::memcpy(&codePoint, out, sizeof codePoint);
  return codePoint;
}

TEST(CodePageTables, EachByteMeansWhatTheSystemTakesItFor) {
  for (const CodePage& page : kCodePages) {
    const bool macintosh = page.number == 10000;
    const std::string name = macintosh ? "MACINTOSH" : "CP" + std::to_string(page.number);
    for (int byte = 0; byte < 256; ++byte) {
      // The increment is no delta, and the maker's mark lies elsewhere among the private
      // characters.
      if (macintosh && (byte == 0xC6 || byte == 0xF0)) continue;
      const auto expected = CodePointByIconv(static_cast<unsigned char>(byte), name);
      ASSERT_TRUE(expected.has_value()) << name;
      EXPECT_EQ(*expected, CodePointOf(static_cast<unsigned char>(byte), page.number))
          << name << " " << byte;
    }
  }
  EXPECT_EQ(U'\u2206', CodePointOf(0xC6, 10000));
  EXPECT_EQ(U'\uF8FF', CodePointOf(0xF0, 10000));
}

}  // namespace
}  // namespace logchecker
