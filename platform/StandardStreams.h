// The program's standard output and standard error.
#pragma once

#include <string>
#include <string_view>

namespace logchecker {

// Writes bytes as they are, with no change of line ends. False when not all could be written.
bool WriteStandardOutput(std::string_view bytes);

// Writes station text in the encoding of the system's console; failures are swallowed.
void WriteStandardError(std::string_view stationText);
bool StandardErrorIsTerminal();

}  // namespace logchecker
