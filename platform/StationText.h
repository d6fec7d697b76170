// Text of the station: 8-bit text in the code page of the system (Windows-1252 where the system has
// none of its own), and its way to UTF-8 and back.
#pragma once

#include <string>
#include <string_view>

namespace logchecker {

std::string ToUtf8(std::string_view stationText);

// The station text of a UTF-8 text. False when a character has no place in the code page; it stands
// as "?" in the result then. Malformed input counts as such a character.
bool FromUtf8(std::string_view utf8, std::string* stationText);

// An argument of the command line, as main received it, as station text.
bool FromArgument(std::string_view argument, std::string* stationText);

// The text with a blank for each control character but line feed and tabulator: on a terminal the
// others move the cursor, change colours or do worse. Text from a file or an argument may hold any.
std::string WithoutControls(std::string_view stationText);

std::string ToUpper(std::string_view stationText);
std::string ToLower(std::string_view stationText);

}  // namespace logchecker
