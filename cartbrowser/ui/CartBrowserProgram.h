// The program that opens the cart browser and prints what was chosen.
#pragma once

#include <functional>

#include "cartbrowser/ui/frmCartBrowser.h"

namespace logchecker {

// What the program takes from rooms that the store does not know.
struct CartBrowserParts {
  std::function<void()> LoadSettings;
  std::function<void()> CloseFiles;  // all that are open when the program has to stop
  ShowNotesWindow ShowNotes;
};

// Runs it to its end: [--settings FOLDER] [NUMBER]. The exit code: 0 when a cart was chosen, whose
// number stands on standard output; 1 when none was; 2 for trouble with the arguments or with the
// store; 3 when a run-time error stopped it.
int RunCartBrowser(int argc, char** argv, const CartBrowserParts& parts);

}  // namespace logchecker
