// Between the station's code page, which is the system's ANSI one, and the system's 16-bit text.
#pragma once

#include <string>
#include <string_view>

namespace logchecker {

std::wstring Widen(std::string_view stationText);

// False when a character has no place in the code page; it stands as "?" in the result then.
bool Narrow(std::wstring_view text, std::string* stationText);

}  // namespace logchecker
