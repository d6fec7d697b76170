// A registry for systems that have none: the file registry.ini in the Windows folder.
#pragma once

#include <map>
#include <string>

#include "platform/RegistryCalls.h"

namespace logchecker {

// A key is a section named by its root and path. A value stands as "sz:" or "dw:" and its text or
// decimal number, with bytes that a profile file can't hold written as %XX.
class PosixRegistry : public RegistryCalls {
 public:
  int32_t OpenKey(uint32_t root, const std::string& subKey, bool fullAccess,
                  RegistryKey* key) override;
  int32_t CreateKey(uint32_t root, const std::string& subKey, RegistryKey* key) override;
  void CloseKey(RegistryKey key) override;
  int32_t QueryType(RegistryKey key, const std::string& name, uint32_t* type,
                    uint32_t* size) override;
  int32_t QueryData(RegistryKey key, const std::string& name, uint32_t* type,
                    std::string* data) override;
  int32_t SetValue(RegistryKey key, const std::string& name, uint32_t type,
                   const std::string& data) override;
  int32_t DeleteValue(RegistryKey key, const std::string& name) override;

 private:
  int32_t ReadValue(RegistryKey key, const std::string& name, uint32_t* type,
                    std::string* data) const;
  RegistryKey Remember(const std::string& section);

  std::map<RegistryKey, std::string> openKeys_;  // the section of each open key
  RegistryKey lastKey_ = 0;
};

}  // namespace logchecker
