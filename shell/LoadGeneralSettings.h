// The first routine of the program: which settings file there is, and what it says.
#pragma once

#include <string>

namespace logchecker {

// Takes the command line: the arguments joined by blanks, in station text.
void SetCommandLine(const std::string& commandLine);

// Settles gSettingsFile by the switch /LI: of the command line, then reads the general settings and
// those of all ten splits.
//
// The switch is odd, and this is meant: the text ".INI" is looked for behind it, in upper case
// alone, in the line as it was given, and the file's name begins at that text, so that
// /LI:OTHER.INI means the file ".INI". Without it the switch is ignored.
void LoadGeneralSettings();

// Whether the settings file has been written and is not empty. Looks for the file of the fixed name
// whatever gSettingsFile holds: this is meant.
bool SettingsAreThere();

}  // namespace logchecker
