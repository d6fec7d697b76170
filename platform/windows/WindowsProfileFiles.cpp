#include <string_view>

#include "platform/windows/WindowsApi.h"
#include "platform/windows/WindowsFile.h"
#include "platform/windows/WindowsParts.h"

namespace logchecker {

namespace {

std::string_view TextOrNone(const char* text) { return text == nullptr ? "" : text; }

// A missing value deletes the key, a missing key the section.
int32_t Write(const std::string& section, const char* key, const char* value,
              const std::string& file) {
  for (const std::string_view text :
       {std::string_view(section), TextOrNone(key), TextOrNone(value)})
    if (!FitsALine(text)) return kInvalidCall;
  const std::string path = ProfilePath(file);
  if (WritePrivateProfileStringA(section.c_str(), key, value, path.c_str())) return kNoError;
  return OpenErrorNumber(path);
}

class SystemProfileFiles : public ProfileFiles {
 public:
  ProfileState StateOf(const std::string& file) override {
    const std::string path = ProfilePath(file);
    const DWORD facts = GetFileAttributesA(path.c_str());
    if (facts == INVALID_FILE_ATTRIBUTES) {
      const DWORD error = GetLastError();
      const bool missing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
      return missing ? ProfileState::kMissing : ProfileState::kRefused;
    }
    if ((facts & FILE_ATTRIBUTE_DIRECTORY) != 0) return ProfileState::kNoFile;
    const DWORD share = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE handle = CreateFileA(path.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return ProfileState::kRefused;
    CloseHandle(handle);
    return ProfileState::kReadable;
  }

  std::string GetString(const std::string& section, const std::string& key,
                        const std::string& defaultValue, int32_t bufferSize,
                        const std::string& file) override {
    if (bufferSize < 1) return {};
    std::string value(static_cast<size_t>(bufferSize), '\0');
    const DWORD length =
        GetPrivateProfileStringA(section.c_str(), key.c_str(), defaultValue.c_str(), value.data(),
                                 static_cast<DWORD>(bufferSize), ProfilePath(file).c_str());
    value.resize(length);
    return value;
  }

  int32_t GetInt(const std::string& section, const std::string& key, int32_t defaultValue,
                 const std::string& file) override {
    return static_cast<int32_t>(GetPrivateProfileIntA(section.c_str(), key.c_str(), defaultValue,
                                                      ProfilePath(file).c_str()));
  }

  int32_t WriteString(const std::string& section, const std::string& key, const std::string& value,
                      const std::string& file) override {
    return Write(section, key.c_str(), value.c_str(), file);
  }

  int32_t DeleteKey(const std::string& section, const std::string& key,
                    const std::string& file) override {
    return Write(section, key.c_str(), nullptr, file);
  }

  int32_t DeleteSection(const std::string& section, const std::string& file) override {
    return Write(section, nullptr, nullptr, file);
  }
};

}  // namespace

ProfileFiles& WindowsProfileFiles() {
  static SystemProfileFiles profiles;
  return profiles;
}

}  // namespace logchecker
