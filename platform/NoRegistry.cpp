#include "platform/NoRegistry.h"

#include <memory>

#include "platform/Platform.h"

namespace logchecker {

namespace {

constexpr int32_t kNotFound = 2;  // the system's own result

class NoRegistry : public RegistryCalls {
 public:
  int32_t OpenKey(uint32_t, const std::string&, bool, RegistryKey*) override { return kNotFound; }
  int32_t CreateKey(uint32_t, const std::string&, RegistryKey*) override { return kNotFound; }
  void CloseKey(RegistryKey) override {}
  int32_t QueryType(RegistryKey, const std::string&, uint32_t*, uint32_t*) override {
    return kNotFound;
  }
  int32_t QueryData(RegistryKey, const std::string&, uint32_t*, std::string*) override {
    return kNotFound;
  }
  int32_t SetValue(RegistryKey, const std::string&, uint32_t, const std::string&) override {
    return kNotFound;
  }
  int32_t DeleteValue(RegistryKey, const std::string&) override { return kNotFound; }
};

}  // namespace

void UseNoRegistry() {
  static NoRegistry registry;
  const Platform& os = Os();
  static std::unique_ptr<Platform> without;
  without.reset(new Platform{os.files, os.directories, os.shell, os.profiles, registry, os.clock,
                             os.waveDevices, os.system, os.processes});
  UsePlatform(*without);
}

}  // namespace logchecker
