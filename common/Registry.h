// Text and number values of the registry. A value exists only while it differs from the default
// that its writer names.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// `root` is an open key such as kCurrentUserRoot (platform/RegistryCalls.h).
bool RegistryKeyExists(uint32_t root, const std::string& subKey);

// The value, or `defaultValue` when it can't be read. A value of another type reads as "".
std::string GetRegistryString(uint32_t root, const std::string& subKey,
                              const std::string& valueName, const std::string& defaultValue);
int32_t GetRegistryDWord(uint32_t root, const std::string& subKey, const std::string& valueName,
                         int32_t defaultValue);

// Stores the value, or deletes it when it equals `defaultValue` to the letter. Failures are
// ignored.
void SetRegistryString(uint32_t root, const std::string& subKey, const std::string& valueName,
                       const std::string& value, const std::string& defaultValue);
void SetRegistryDWord(uint32_t root, const std::string& subKey, const std::string& valueName,
                      int32_t value, int32_t defaultValue);

}  // namespace logchecker
