// The registry: keys below a root, each with named values.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

inline constexpr uint32_t kCurrentUserRoot = 0x80000001;   // HKEY_CURRENT_USER
inline constexpr uint32_t kLocalMachineRoot = 0x80000002;  // HKEY_LOCAL_MACHINE

inline constexpr uint32_t kRegistryText = 1;    // REG_SZ
inline constexpr uint32_t kRegistryNumber = 4;  // REG_DWORD, four bytes, little-endian

using RegistryKey = intptr_t;

// Each call returns the system's own result, 0 for success.
class RegistryCalls {
 public:
  virtual ~RegistryCalls() = default;

  // Opens an existing key; with `fullAccess` for everything, otherwise as the system's default is.
  virtual int32_t OpenKey(uint32_t root, const std::string& subKey, bool fullAccess,
                          RegistryKey* key) = 0;
  // Opens a key, making it and those above it where they are missing.
  virtual int32_t CreateKey(uint32_t root, const std::string& subKey, RegistryKey* key) = 0;
  virtual void CloseKey(RegistryKey key) = 0;
  // Type and size in bytes of a value, without its data.
  virtual int32_t QueryType(RegistryKey key, const std::string& name, uint32_t* type,
                            uint32_t* size) = 0;
  // Fills `data` (its size is the room there is) and sets the type; the bytes behind the value's
  // end stay as they were.
  virtual int32_t QueryData(RegistryKey key, const std::string& name, uint32_t* type,
                            std::string* data) = 0;
  virtual int32_t SetValue(RegistryKey key, const std::string& name, uint32_t type,
                           const std::string& data) = 0;
  virtual int32_t DeleteValue(RegistryKey key, const std::string& name) = 0;
};

}  // namespace logchecker
