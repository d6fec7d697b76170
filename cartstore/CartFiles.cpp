#include "cartstore/CartFiles.h"

#include "cartstore/AudiowallParts.h"
#include "common/FileHelpers.h"

namespace logchecker {

std::string GetCartFileStem(int32_t cartNumber) {
  constexpr size_t kLeastDigits = 5;
  if (cartNumber < 1 || cartNumber > gNumberOfCarts) return "";
  std::string digits = std::to_string(cartNumber);
  if (digits.size() < kLeastDigits) digits.insert(0, kLeastDigits - digits.size(), '0');
  return PartEntry(GetCartPart(cartNumber)).Path + "\\VEL" + digits;
}

std::string GetCartNotesFile(int32_t cartNumber, bool& exists) {
  const std::string stem = GetCartFileStem(cartNumber);
  if (stem.empty()) return "";
  for (const char* extension : {".RTF", ".TXT"}) {
    exists = FileCanBeOpened(stem + extension);
    if (exists) return stem + extension;
  }
  return stem + ".RTF";
}

}  // namespace logchecker
