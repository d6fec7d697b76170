// The day in hand.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// The loaded day, as a day number.
extern int32_t CurrentLogDate;

// Loads a day into all ten splits, active or not, and puts the first break of each at the top.
// Nothing of an earlier day is kept but a log that is still open.
void LoadLogs(int32_t date);

// What the main window is called with that day in it.
std::string CaptionOfDay(int32_t date);

// Closes every file that the program has open, the logs with them.
void CloseAllFiles();

}  // namespace logchecker
