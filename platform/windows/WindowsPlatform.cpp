#include "platform/windows/WindowsParts.h"

namespace logchecker {

Platform& RealPlatform() {
  static Platform platform{WindowsFiles(),        WindowsDirectories(), WindowsShell(),
                           WindowsProfileFiles(), WindowsRegistry(),    WindowsClock(),
                           WindowsWaveDevices(),  WindowsSystemFacts(), WindowsProcesses()};
  return platform;
}

}  // namespace logchecker
