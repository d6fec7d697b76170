// Getting a station ready for the headless program.
#pragma once

#include "common/Trouble.h"  // IWYU pragma: export
#include "headless/CommandLine.h"
#include "headless/TerminalUi.h"

namespace logchecker {

// Points the program at its settings folder and reads the general settings. A name that could be
// two is a warning. Throws Trouble when there are none.
void ReadStationSettings(const Options& options, TerminalUi& ui);

// Reads the audio settings and opens the cart store. What is missing of it beside parts that can be
// used becomes warnings; Trouble when none can.
void OpenStore(TerminalUi& ui);

// A list file that can't be read is a warning: its carts pass for carts without audio. Each is
// warned of once, and again when it could be read in between.
void WarnOfUnreadableParts();

void CloseStation();

}  // namespace logchecker
