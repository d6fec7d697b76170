#include "notes/CodePages.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>
#include <vector>

#include "notes/Utf8.h"
#include "platform/CodePageText.h"

namespace logchecker {

namespace {

struct CharsetPage {
  int32_t charset;
  int32_t codePage;
};

constexpr CharsetPage kCharsets[] = {
    {77, 10000}, {128, 932},  {129, 949},  {134, 936},  {136, 950},  {161, 1253},
    {162, 1254}, {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251},
    {222, 874},  {238, 1250}, {254, 437},  {255, 850},
};

const CodePage& PageOf(int32_t number) {
  const CodePage* western = nullptr;
  for (const CodePage& page : kCodePages) {
    if (page.number == number) return page;
    if (page.number == kWesternCodePage) western = &page;
  }
  return *western;
}

constexpr int32_t kDoubleBytePages[] = {932, 936, 949, 950};

bool IsOfPairs(int32_t codePage) {
  return std::find(std::begin(kDoubleBytePages), std::end(kDoubleBytePages), codePage) !=
         std::end(kDoubleBytePages);
}

struct DoubleBytePage {
  std::vector<char16_t> cells;
  std::array<bool, 256> leads{};  // the bytes that begin a pair
};

DoubleBytePage MakePage(int32_t codePage) {
  DoubleBytePage page;
  ReadDoubleBytePage(codePage, &page.cells);
  for (size_t lead = 0x80; lead < page.leads.size(); ++lead) {
    const auto first = page.cells.begin() + static_cast<std::ptrdiff_t>(lead * 0x100);
    const bool pairs = std::any_of(first, first + 0x100,
                                   [](char16_t character) { return character != kNoCharacter; });
    page.leads[lead] = page.cells[lead] == kNoCharacter && pairs;
  }
  return page;
}

// Made the first time that it is asked for.
const DoubleBytePage& PageOfPairs(int32_t codePage) {
  static std::array<std::unique_ptr<const DoubleBytePage>, std::size(kDoubleBytePages)> pages;
  const auto* const found =
      std::find(std::begin(kDoubleBytePages), std::end(kDoubleBytePages), codePage);
  auto& page = pages[static_cast<size_t>(found - std::begin(kDoubleBytePages))];
  if (!page) page = std::make_unique<const DoubleBytePage>(MakePage(codePage));
  return *page;
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

const std::u32string& ByteDecoder::Take(unsigned char byte, int32_t codePage) {
  ready_.clear();
  if (codePage != codePage_) {
    if (HasBegun()) ready_ += kReplacement;
    begun_.clear();
    codePage_ = codePage;
  }
  if (codePage == kUtf8CodePage) {
    TakeOfUtf8(byte);
  } else if (IsOfPairs(codePage)) {
    TakeOfPair(byte);
  } else {
    ready_ += CodePointOf(byte, codePage);
  }
  return ready_;
}

const std::u32string& ByteDecoder::End() {
  ready_.clear();
  if (HasBegun()) ready_ += kReplacement;
  begun_.clear();
  return ready_;
}

void ByteDecoder::TakeOfPair(unsigned char byte) {
  const DoubleBytePage& page = PageOfPairs(codePage_);
  if (HasBegun()) {
    const auto lead = static_cast<unsigned char>(begun_[0]);
    const char16_t character = page.cells[lead * size_t{0x100} + byte];
    begun_.clear();
    ready_ += character;
    // A character of plain ASCII that ends no pair stands for itself.
    if (character == kNoCharacter && byte < 0x80) ready_ += byte;
  } else if (byte < 0x80) {
    ready_ += byte;
  } else if (page.leads[byte]) {
    begun_ += static_cast<char>(byte);
  } else {
    ready_ += page.cells[byte];
  }
}

void ByteDecoder::TakeOfUtf8(unsigned char byte) {
  const bool tail = (byte & 0xC0U) == 0x80;
  if (HasBegun() && !tail) {
    ready_ += kReplacement;
    begun_.clear();
  }
  begun_ += static_cast<char>(byte);
  const size_t whole = Utf8Length(static_cast<unsigned char>(begun_[0]));
  if (begun_.size() < whole) return;
  ready_ += Utf8Character(begun_);
  begun_.clear();
}

}  // namespace logchecker
