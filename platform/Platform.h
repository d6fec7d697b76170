// The one seam to the operating system. Everything that the program asks of the system goes through
// the platform in force; a test puts its own in the place of any part.
#pragma once

#include "platform/Clock.h"
#include "platform/Directories.h"
#include "platform/ErrorNumbers.h"  // IWYU pragma: export
#include "platform/Files.h"
#include "platform/Processes.h"
#include "platform/ProfileFiles.h"
#include "platform/RegistryCalls.h"
#include "platform/Shell.h"
#include "platform/SystemFacts.h"
#include "platform/WaveDevices.h"

namespace logchecker {

// References only: the parts belong to whoever made the platform and outlive it.
struct Platform {
  Files& files;
  Directories& directories;
  Shell& shell;
  ProfileFiles& profiles;
  RegistryCalls& registry;
  Clock& clock;
  WaveDevices& waveDevices;
  SystemFacts& system;
  Processes& processes;
};

// The real system's; there is one for the whole run.
Platform& RealPlatform();

// The platform in force, at first the real one.
Platform& Os();
// Puts another in force and returns the one that was.
Platform& UsePlatform(Platform& platform);

}  // namespace logchecker
