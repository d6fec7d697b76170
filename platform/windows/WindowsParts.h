// The parts of the real platform. There is one of each for the whole run.
#pragma once

#include <string>

#include "platform/Platform.h"

namespace logchecker {

Files& WindowsFiles();
Directories& WindowsDirectories();
Shell& WindowsShell();
ProfileFiles& WindowsProfileFiles();
RegistryCalls& WindowsRegistry();
Clock& WindowsClock();
WaveDevices& WindowsWaveDevices();
SystemFacts& WindowsSystemFacts();
Processes& WindowsProcesses();

// The path of a profile file: a bare name lies in the folder that took the Windows folder's place,
// if one did; otherwise it stays bare, and the system looks where it always does.
std::string ProfilePath(const std::string& file);

}  // namespace logchecker
