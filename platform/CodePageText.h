// The double-byte code pages of East Asia, as the system knows them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace logchecker {

inline constexpr size_t kDoubleByteCells = 0x10000;
inline constexpr char16_t kNoCharacter = 0xFFFD;

// Fills `cells` with the characters of page 932, 936, 949 or 950. A pair's cell is its first byte
// times 256 and its second; a byte that stands alone has a cell below 256. kNoCharacter where there
// is none, and everywhere when the system doesn't know the page.
void ReadDoubleBytePage(int32_t codePage, std::vector<char16_t>* cells);

}  // namespace logchecker
