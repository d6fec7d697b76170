#include <iconv.h>

#include <cstdint>
#include <string>

#include "platform/CodePageText.h"

namespace logchecker {

namespace {

// One character of a code page; kNoCharacter where the bytes are none, or not one alone.
char16_t CharacterOf(iconv_t conversion, char* bytes, size_t size) {
  char units[8] = {};
  char* end = units;
  size_t room = sizeof units;
  iconv(conversion, nullptr, nullptr, nullptr, nullptr);
  const bool converted = iconv(conversion, &bytes, &size, &end, &room) != static_cast<size_t>(-1);
  if (!converted || end != units + 2) return kNoCharacter;
  const auto low = static_cast<unsigned char>(units[0]);
  const auto high = static_cast<unsigned char>(units[1]);
  return static_cast<char16_t>(high << 8U | low);
}

}  // namespace

void ReadDoubleBytePage(int32_t codePage, std::vector<char16_t>* cells) {
  cells->assign(kDoubleByteCells, kNoCharacter);
  const std::string name = "CP" + std::to_string(codePage);
  const iconv_t conversion = iconv_open("UTF-16LE", name.c_str());
  // The call's own value for a failure, which is no address.
  if (reinterpret_cast<intptr_t>(conversion) == -1) return;
  for (size_t cell = 0; cell < kDoubleByteCells; ++cell) {
    char bytes[] = {static_cast<char>(cell >> 8U), static_cast<char>(cell & 0xFFU)};
    const bool alone = cell < 0x100;
    (*cells)[cell] = alone ? CharacterOf(conversion, bytes + 1, 1)
                           : CharacterOf(conversion, bytes, sizeof bytes);
  }
  iconv_close(conversion);
}

}  // namespace logchecker
