// The files that belong to one cart: its own list file and its notes.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// The directory of the cart's part, "\VEL" and the number with at least five digits, without an
// extension. "" for a number outside the store.
std::string GetCartFileStem(int32_t cartNumber);

// The cart's notes: stem and ".RTF", or else ".TXT", whichever can be opened first; with neither,
// `exists` is false and the result is the ".RTF" name. For a number outside the store the result is
// "" and `exists` stays as it was.
std::string GetCartNotesFile(int32_t cartNumber, bool& exists);

}  // namespace logchecker
