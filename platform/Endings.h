// What a program does when it is told to end from outside.
#pragma once

#include <string>

namespace logchecker {

// From here on a program that is told to end (by a signal, or on Windows by its console) first
// removes the temporary files of what it is writing, and then ends as it would have. A signal that
// the program was started without stays without effect. Each main calls it first of all.
void EndWithoutTemporaryFiles();

// A program that is told to end also removes this folder, with all that is in it; the name is in
// the encoding of the system and has a root. There is one such folder at a time, and none with an
// empty name.
void RemoveFolderWhenEnded(const std::string& folder);

// From here on a program that is told to end because somebody wants it to (from the keyboard, by a
// service's manager) ends at once with exit code 0: to be ended is all it waits for.
void EndWithSuccess();

}  // namespace logchecker
