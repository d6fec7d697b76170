#include "platform/Platform.h"
#include "platform/posix/PosixClock.h"
#include "platform/posix/PosixDirectories.h"
#include "platform/posix/PosixFiles.h"
#include "platform/posix/PosixProcesses.h"
#include "platform/posix/PosixProfileFiles.h"
#include "platform/posix/PosixRegistry.h"
#include "platform/posix/PosixShell.h"
#include "platform/posix/PosixSystemFacts.h"
#include "platform/posix/PosixWaveDevices.h"

namespace logchecker {

Platform& RealPlatform() {
  static PosixFiles files;
  static PosixDirectories directories;
  static PosixShell shell;
  static PosixProfileFiles profiles;
  static PosixRegistry registry;
  static PosixClock clock;
  static PosixWaveDevices waveDevices;
  static PosixSystemFacts system;
  static PosixProcesses processes;
  static Platform platform{files, directories, shell,  profiles, registry,
                           clock, waveDevices, system, processes};
  return platform;
}

}  // namespace logchecker
