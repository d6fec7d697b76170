#include "platform/posix/UserFolders.h"

#include <cstdlib>

namespace logchecker {

std::string UserConfigFolder() {
  const char* config = std::getenv("XDG_CONFIG_HOME");
  if (config != nullptr && config[0] == '/') return config;
  const char* home = std::getenv("HOME");
  return std::string(home == nullptr ? "" : home) + "/.config";
}

}  // namespace logchecker
