#include "platform/posix/PosixProfileFiles.h"

#include "platform/posix/ProfileStore.h"
#include "platform/posix/StationPath.h"

namespace logchecker {

namespace {

std::string ProfilePath(const std::string& file) {
  if (file.find_first_of("\\/:") != std::string::npos) return HostPath(file);
  std::string name = file;
  std::string other;
  FindName(HostWindowsFolder(), file, &name, &other);
  return HostWindowsFolder() + "/" + name;
}

int DigitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 16;
}

}  // namespace

int32_t ProfileNumber(const std::string& value) {
  const char* next = value.c_str();
  while (*next != '\0' && static_cast<unsigned char>(*next) <= ' ') ++next;
  const bool negative = *next == '-';
  if (*next == '-' || *next == '+') ++next;
  int base = 10;
  if (next[0] == '0' && (next[1] == 'x' || next[1] == 'o' || next[1] == 'b')) {
    base = next[1] == 'x' ? 16 : (next[1] == 'o' ? 8 : 2);
    next += 2;
  }
  uint32_t number = 0;
  for (; DigitOf(*next) < base; ++next) {
    number = number * static_cast<uint32_t>(base) + static_cast<uint32_t>(DigitOf(*next));
  }
  return static_cast<int32_t>(negative ? 0U - number : number);
}

ProfileState PosixProfileFiles::StateOf(const std::string& file) {
  return StateOfProfile(ProfilePath(file));
}

std::string PosixProfileFiles::GetString(const std::string& section, const std::string& key,
                                         const std::string& defaultValue, int32_t bufferSize,
                                         const std::string& file) {
  const std::string* value = ReadProfile(ProfilePath(file)).Find(section, key);
  const size_t room = bufferSize > 0 ? static_cast<size_t>(bufferSize) - 1 : 0;
  if (value != nullptr) return value->substr(0, room);
  const size_t last = defaultValue.find_last_not_of(' ');
  return defaultValue.substr(0, last == std::string::npos ? 0 : last + 1).substr(0, room);
}

int32_t PosixProfileFiles::GetInt(const std::string& section, const std::string& key,
                                  int32_t defaultValue, const std::string& file) {
  const std::string* value = ReadProfile(ProfilePath(file)).Find(section, key);
  return value == nullptr || value->empty() ? defaultValue : ProfileNumber(*value);
}

int32_t PosixProfileFiles::WriteString(const std::string& section, const std::string& key,
                                       const std::string& value, const std::string& file) {
  return SetProfileKey(ProfilePath(file), section, key, value);
}

int32_t PosixProfileFiles::DeleteKey(const std::string& section, const std::string& key,
                                     const std::string& file) {
  bool wasThere = false;
  return DeleteProfileKey(ProfilePath(file), section, key, &wasThere);
}

int32_t PosixProfileFiles::DeleteSection(const std::string& section, const std::string& file) {
  return DeleteProfileSection(ProfilePath(file), section);
}

}  // namespace logchecker
