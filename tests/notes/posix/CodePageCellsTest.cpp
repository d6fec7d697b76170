// Every cell of the code pages against the system's own tables.
#include <gtest/gtest.h>
#include <iconv.h>

#include <map>

#include "notes/CodePages.h"
#include "notes/Utf8.h"

namespace logchecker {
namespace {

// The character that the bytes are in the system's table; U+FFFD where they are none.
char32_t SystemCharacter(const char* page, std::string bytes) {
  const iconv_t conversion = iconv_open("UTF-32LE", page);
  EXPECT_NE(conversion, reinterpret_cast<iconv_t>(-1)) << page;
  char32_t character = 0;
  char* in = bytes.data();
  char* out = reinterpret_cast<char*>(&character);
  size_t size = bytes.size();
  size_t room = sizeof character;
  const bool converted = iconv(conversion, &in, &size, &out, &room) != static_cast<size_t>(-1);
  // Pages of letters whose accents follow them hold back the last one.
  iconv(conversion, nullptr, nullptr, &out, &room);
  iconv_close(conversion);
  return converted && room == 0 ? character : kReplacement;
}

std::string NameOf(int32_t page) {
  return page == 10000 ? "MACINTOSH" : "CP" + std::to_string(page);
}

// The maker of the page has these for what the system gives a Greek letter and a private number.
const std::map<std::pair<int32_t, int>, char32_t> kOtherwise = {{{10000, 0xC6}, 0x2206},
                                                                {{10000, 0xF0}, 0xF8FF}};

TEST(CodePageCellsTest, EveryByteOfEveryPageOfSingleBytes) {
  for (const CodePage& page : kCodePages) {
    for (int byte = 0; byte < 0x100; ++byte) {
      const auto otherwise = kOtherwise.find({page.number, byte});
      const char32_t expected = otherwise != kOtherwise.end()
                                    ? otherwise->second
                                    : SystemCharacter(NameOf(page.number).c_str(),
                                                      std::string(1, static_cast<char>(byte)));
      ASSERT_EQ(static_cast<uint32_t>(CodePointOf(static_cast<unsigned char>(byte), page.number)),
                static_cast<uint32_t>(expected))
          << page.number << " " << byte;
    }
  }
}

TEST(CodePageCellsTest, EveryPairOfEveryPageOfPairs) {
  for (const int32_t page : {932, 936, 949, 950}) {
    size_t pairs = 0;
    for (int first = 0x80; first < 0x100; ++first) {
      ByteDecoder decoder;
      for (int second = 0x40; second < 0x100; ++second) {
        const std::u32string begun = decoder.Take(static_cast<unsigned char>(first), page);
        if (!decoder.HasBegun()) break;  // it stands alone
        ASSERT_EQ(begun, U"");
        const std::u32string pair = decoder.Take(static_cast<unsigned char>(second), page);
        const std::string bytes = {static_cast<char>(first), static_cast<char>(second)};
        const char32_t expected = SystemCharacter(NameOf(page).c_str(), bytes);
        ASSERT_EQ(static_cast<uint32_t>(pair.at(0)), static_cast<uint32_t>(expected))
            << page << " " << first << " " << second;
        if (expected != kReplacement) ++pairs;
      }
    }
    EXPECT_GT(pairs, 7000U) << page;
  }
}

}  // namespace
}  // namespace logchecker
