// Where a report goes.
#pragma once

#include <string>
#include <string_view>

namespace logchecker {

// Writes `bytes` to the file, whole or not at all, or to standard output with an empty path. "" on
// success, otherwise one clear line.
std::string WriteReport(const std::string& path, const std::string& bytes);

// The text with tabs and other control characters as blanks, in UTF-8: one field of a line.
std::string FieldText(std::string_view stationText);

}  // namespace logchecker
