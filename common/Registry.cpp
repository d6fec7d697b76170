#include "common/Registry.h"

#include <cstring>

#include "common/TextHelpers.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

constexpr size_t kNumberSize = sizeof(int32_t);

void Store(uint32_t root, const std::string& subKey, const std::string& valueName, uint32_t type,
           const std::string& data) {
  RegistryCalls& registry = Os().registry;
  RegistryKey key = 0;
  if (registry.CreateKey(root, subKey, &key) != 0) return;
  registry.SetValue(key, valueName, type, data);
  registry.CloseKey(key);
}

void Delete(uint32_t root, const std::string& subKey, const std::string& valueName) {
  RegistryCalls& registry = Os().registry;
  RegistryKey key = 0;
  if (!RegistryKeyExists(root, subKey) || registry.OpenKey(root, subKey, false, &key) != 0) return;
  registry.DeleteValue(key, valueName);
  registry.CloseKey(key);
}

}  // namespace

bool RegistryKeyExists(uint32_t root, const std::string& subKey) {
  RegistryKey key = 0;
  if (Os().registry.OpenKey(root, subKey, true, &key) != 0) return false;
  Os().registry.CloseKey(key);
  return true;
}

std::string GetRegistryString(uint32_t root, const std::string& subKey,
                              const std::string& valueName, const std::string& defaultValue) {
  RegistryCalls& registry = Os().registry;
  RegistryKey key = 0;
  if (registry.OpenKey(root, subKey, false, &key) != 0) return defaultValue;
  std::string value = defaultValue;
  uint32_t type = 0;
  uint32_t size = 0;
  if (registry.QueryType(key, valueName, &type, &size) == 0) {
    value.clear();
    if (type == kRegistryText) {
      std::string buffer(size, ' ');
      const bool read = registry.QueryData(key, valueName, &type, &buffer) == 0;
      value = read ? TrimAtNull(buffer, false) : defaultValue;
    }
  }
  registry.CloseKey(key);
  return value;
}

int32_t GetRegistryDWord(uint32_t root, const std::string& subKey, const std::string& valueName,
                         int32_t defaultValue) {
  RegistryCalls& registry = Os().registry;
  RegistryKey key = 0;
  if (registry.OpenKey(root, subKey, false, &key) != 0) return defaultValue;
  uint32_t type = 0;
  std::string buffer(kNumberSize, '\0');
  int32_t value = defaultValue;
  if (registry.QueryData(key, valueName, &type, &buffer) == 0) {
    std::memcpy(&value, buffer.data(), kNumberSize);
  }
  registry.CloseKey(key);
  return value;
}

void SetRegistryString(uint32_t root, const std::string& subKey, const std::string& valueName,
                       const std::string& value, const std::string& defaultValue) {
  if (value == defaultValue) {
    Delete(root, subKey, valueName);
  } else {
    Store(root, subKey, valueName, kRegistryText, value);
  }
}

void SetRegistryDWord(uint32_t root, const std::string& subKey, const std::string& valueName,
                      int32_t value, int32_t defaultValue) {
  if (value == defaultValue) {
    Delete(root, subKey, valueName);
    return;
  }
  std::string data(kNumberSize, '\0');
  std::memcpy(data.data(), &value, kNumberSize);
  Store(root, subKey, valueName, kRegistryNumber, data);
}

}  // namespace logchecker
