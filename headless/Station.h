// Getting a station ready for the headless program.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "common/Trouble.h"  // IWYU pragma: export
#include "headless/CommandLine.h"
#include "headless/TerminalUi.h"

namespace logchecker {

// Points the program at its settings folder and reads the general settings. A name that could be
// two is a warning. Throws Trouble when there are none.
void ReadStationSettings(const Options& options, TerminalUi& ui);

// Reads the audio settings and opens the cart store. What is missing of it beside parts that can be
// used is a warning; throws Trouble when none can.
void OpenStore(TerminalUi& ui);

// Messages of the store for people: its paths with one form of separator.
std::vector<std::string> ShownMessages(std::vector<std::string> messages);

// Takes what has been shown and warns of it.
void WriteWarnings(TerminalUi& ui);

// The day that was asked for, or tomorrow.
int32_t FirstDay(const Options& options);

// A list file that can't be read is a warning: its carts pass for carts without audio. Each is
// written once, and again when it could be read in between. Gives a line for each part that can't
// be read now.
std::vector<std::string> WarnOfUnreadableParts();

// Why the file can't be read, as an error number; 0 when it can.
int32_t ReadingError(const std::string& path);

void CloseStation();

}  // namespace logchecker
