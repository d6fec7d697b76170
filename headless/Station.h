// Getting a station ready for the headless program.
#pragma once

#include "common/Trouble.h"  // IWYU pragma: export
#include "headless/CommandLine.h"
#include "headless/TerminalUi.h"

namespace logchecker {

// Points the program at its settings folder and reads the general settings. Throws Trouble when
// there are none.
void ReadStationSettings(const Options& options);

// Reads the audio settings and opens the cart store. What is missing of it beside parts that can be
// used becomes warnings; Trouble when none can.
void OpenStore(TerminalUi& ui);

void CloseStation();

}  // namespace logchecker
