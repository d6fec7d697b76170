#include "platform/posix/PosixRegistry.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "platform/ErrorNumbers.h"
#include "platform/posix/ProfileStore.h"
#include "platform/posix/StationPath.h"

namespace logchecker {

namespace {

// The results that the system's own calls give.
constexpr int32_t kNotFound = 2;
constexpr int32_t kInvalidHandle = 6;
constexpr int32_t kWriteFault = 29;

// Marks a key that exists without a value.
constexpr char kKeyMark[] = "%";

std::string RegistryFile() { return HostWindowsFolder() + "/registry.ini"; }

std::string SectionName(uint32_t root, const std::string& subKey) {
  std::string name = root == kCurrentUserRoot    ? "HKEY_CURRENT_USER"
                     : root == kLocalMachineRoot ? "HKEY_LOCAL_MACHINE"
                                                 : std::to_string(root);
  return subKey.empty() ? name : name + "\\" + subKey;
}

std::string Escape(const std::string& bytes) {
  constexpr char kHex[] = "0123456789ABCDEF";
  std::string text;
  for (const char c : bytes) {
    const auto code = static_cast<unsigned char>(c);
    if (code <= ' ' || c == '%' || c == '=' || c == '[' || c == ']' || c == ';' || c == '"' ||
        c == '\'') {
      text += '%';
      text += kHex[code >> 4U];
      text += kHex[code & 15U];
    } else {
      text += c;
    }
  }
  return text;
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

std::string Unescape(const std::string& text) {
  std::string bytes;
  for (size_t i = 0; i < text.size(); ++i) {
    const bool escaped = text[i] == '%' && i + 2 < text.size() && HexDigit(text[i + 1]) >= 0 &&
                         HexDigit(text[i + 2]) >= 0;
    if (escaped) {
      bytes += static_cast<char>(HexDigit(text[i + 1]) * 16 + HexDigit(text[i + 2]));
      i += 2;
    } else {
      bytes += text[i];
    }
  }
  return bytes;
}

std::string NumberBytes(uint32_t number) {
  std::string bytes(sizeof number, '\0');
  std::memcpy(bytes.data(), &number, sizeof number);
  return bytes;
}

uint32_t NumberOf(const std::string& bytes) {
  uint32_t number = 0;
  std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof number));
  return number;
}

int32_t WriteOne(const std::string& section, const std::string& name, const std::string& value) {
  return SetProfileKey(RegistryFile(), section, name, value) == kNoError ? 0 : kWriteFault;
}

}  // namespace

RegistryKey PosixRegistry::Remember(const std::string& section) {
  openKeys_[++lastKey_] = section;
  return lastKey_;
}

int32_t PosixRegistry::OpenKey(uint32_t root, const std::string& subKey, bool /*fullAccess*/,
                               RegistryKey* key) {
  const std::string section = SectionName(root, subKey);
  if (ReadProfile(RegistryFile()).Find(section, kKeyMark) == nullptr) return kNotFound;
  *key = Remember(section);
  return 0;
}

int32_t PosixRegistry::CreateKey(uint32_t root, const std::string& subKey, RegistryKey* key) {
  for (size_t end = 0; end != std::string::npos;) {
    end = subKey.find('\\', end + 1);
    const std::string section = SectionName(root, subKey.substr(0, end));
    if (ReadProfile(RegistryFile()).Find(section, kKeyMark) != nullptr) continue;
    const int32_t error = WriteOne(section, kKeyMark, "");
    if (error != 0) return error;
  }
  *key = Remember(SectionName(root, subKey));
  return 0;
}

void PosixRegistry::CloseKey(RegistryKey key) { openKeys_.erase(key); }

int32_t PosixRegistry::ReadValue(RegistryKey key, const std::string& name, uint32_t* type,
                                 std::string* data) const {
  const auto section = openKeys_.find(key);
  if (section == openKeys_.end()) return kInvalidHandle;
  const std::string* value = ReadProfile(RegistryFile()).Find(section->second, "v" + Escape(name));
  if (value == nullptr) return kNotFound;
  const std::string text = Unescape(value->substr(std::min<size_t>(3, value->size())));
  if (value->rfind("dw:", 0) == 0) {
    *type = kRegistryNumber;
    *data = NumberBytes(static_cast<uint32_t>(std::strtoul(text.c_str(), nullptr, 10)));
  } else {
    *type = kRegistryText;
    *data = text;
  }
  return 0;
}

int32_t PosixRegistry::QueryType(RegistryKey key, const std::string& name, uint32_t* type,
                                 uint32_t* size) {
  std::string value;
  const int32_t error = ReadValue(key, name, type, &value);
  if (error == 0) *size = static_cast<uint32_t>(value.size());
  return error;
}

int32_t PosixRegistry::QueryData(RegistryKey key, const std::string& name, uint32_t* type,
                                 std::string* data) {
  constexpr int32_t kMoreData = 234;
  std::string value;
  const int32_t error = ReadValue(key, name, type, &value);
  if (error != 0) return error;
  if (value.size() > data->size()) return kMoreData;
  std::copy(value.begin(), value.end(), data->begin());
  return 0;
}

int32_t PosixRegistry::SetValue(RegistryKey key, const std::string& name, uint32_t type,
                                const std::string& data) {
  const auto section = openKeys_.find(key);
  if (section == openKeys_.end()) return kInvalidHandle;
  const std::string value =
      type == kRegistryNumber ? "dw:" + std::to_string(NumberOf(data)) : "sz:" + Escape(data);
  return WriteOne(section->second, "v" + Escape(name), value);
}

int32_t PosixRegistry::DeleteValue(RegistryKey key, const std::string& name) {
  const auto section = openKeys_.find(key);
  if (section == openKeys_.end()) return kInvalidHandle;
  bool wasThere = false;
  const int32_t error =
      DeleteProfileKey(RegistryFile(), section->second, "v" + Escape(name), &wasThere);
  if (error != kNoError) return kWriteFault;
  return wasThere ? 0 : kNotFound;
}

}  // namespace logchecker
