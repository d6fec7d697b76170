#include "platform/CodePageText.h"
#include "platform/windows/WindowsApi.h"

namespace logchecker {

void ReadDoubleBytePage(int32_t codePage, std::vector<char16_t>* cells) {
  cells->assign(kDoubleByteCells, kNoCharacter);
  const auto page = static_cast<UINT>(codePage);
  for (size_t cell = 0; cell < kDoubleByteCells; ++cell) {
    const char bytes[] = {static_cast<char>(cell >> 8U), static_cast<char>(cell & 0xFFU)};
    const bool alone = cell < 0x100;
    wchar_t unit = 0;
    const int units = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, alone ? bytes + 1 : bytes,
                                          alone ? 1 : 2, &unit, 1);
    if (units == 1) (*cells)[cell] = static_cast<char16_t>(unit);
  }
}

}  // namespace logchecker
