#include "platform/windows/WindowsApi.h"
#include "platform/windows/WindowsParts.h"

namespace logchecker {

namespace {

constexpr REGSAM kFullAccess = 0xF003F;

// The roots are handles with the sign bit of 32 bits set, which widens with them.
HKEY RootHandle(uint32_t root) {
  return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<int32_t>(root)));
}

HKEY KeyHandle(RegistryKey key) { return reinterpret_cast<HKEY>(key); }

class SystemRegistry : public RegistryCalls {
 public:
  int32_t OpenKey(uint32_t root, const std::string& subKey, bool fullAccess,
                  RegistryKey* key) override {
    HKEY handle = nullptr;
    const LSTATUS result =
        fullAccess ? RegOpenKeyExA(RootHandle(root), subKey.c_str(), 0, kFullAccess, &handle)
                   : RegOpenKeyA(RootHandle(root), subKey.c_str(), &handle);
    *key = reinterpret_cast<RegistryKey>(handle);
    return result;
  }

  int32_t CreateKey(uint32_t root, const std::string& subKey, RegistryKey* key) override {
    HKEY handle = nullptr;
    const LSTATUS result = RegCreateKeyA(RootHandle(root), subKey.c_str(), &handle);
    *key = reinterpret_cast<RegistryKey>(handle);
    return result;
  }

  void CloseKey(RegistryKey key) override { RegCloseKey(KeyHandle(key)); }

  int32_t QueryType(RegistryKey key, const std::string& name, uint32_t* type,
                    uint32_t* size) override {
    DWORD valueType = 0;
    DWORD valueSize = 0;
    const LSTATUS result =
        RegQueryValueExA(KeyHandle(key), name.c_str(), nullptr, &valueType, nullptr, &valueSize);
    *type = valueType;
    *size = valueSize;
    return result;
  }

  int32_t QueryData(RegistryKey key, const std::string& name, uint32_t* type,
                    std::string* data) override {
    DWORD valueType = 0;
    DWORD size = static_cast<DWORD>(data->size());
    const LSTATUS result = RegQueryValueExA(KeyHandle(key), name.c_str(), nullptr, &valueType,
                                            reinterpret_cast<BYTE*>(data->data()), &size);
    *type = valueType;
    return result;
  }

  int32_t SetValue(RegistryKey key, const std::string& name, uint32_t type,
                   const std::string& data) override {
    return RegSetValueExA(KeyHandle(key), name.c_str(), 0, type,
                          reinterpret_cast<const BYTE*>(data.data()),
                          static_cast<DWORD>(data.size()));
  }

  int32_t DeleteValue(RegistryKey key, const std::string& name) override {
    return RegDeleteValueA(KeyHandle(key), name.c_str());
  }
};

}  // namespace

RegistryCalls& WindowsRegistry() {
  static SystemRegistry registry;
  return registry;
}

}  // namespace logchecker
