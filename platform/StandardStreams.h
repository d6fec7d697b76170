// The program's standard output and standard error.
#pragma once

#include <string>
#include <string_view>

namespace logchecker {

// Called first of all by a program. Sees to it that no file which the program opens later takes the
// place of a standard stream that it was started without: a report would go into that file. A
// stream that was closed stays one that can't be written, and standard input one that is at its
// end.
void HoldStandardStreams();

// Called before it by a program with windows. Where the system gives such a program no console,
// what it writes goes to that of the program which started it, unless it was given streams.
void JoinConsole();

// Writes bytes as they are, with no change of line ends. False when not all could be written.
bool WriteStandardOutput(std::string_view bytes);
bool StandardOutputIsTerminal();

// Writes station text in the encoding of the system's console, with a blank for each control
// character but line feed and tabulator; failures are swallowed.
void WriteStandardError(std::string_view stationText);
bool StandardErrorIsTerminal();
// Writes the text over the beginning of the terminal's line, and goes back to that beginning.
void OverwriteTerminalLine(std::string_view stationText);

}  // namespace logchecker
