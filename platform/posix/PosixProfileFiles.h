// Profile files with the rules of the system calls that other systems have for them.
#pragma once

#include <string>

#include "platform/ProfileFiles.h"

namespace logchecker {

class PosixProfileFiles : public ProfileFiles {
 public:
  ProfileState StateOf(const std::string& file) override;
  std::string GetString(const std::string& section, const std::string& key,
                        const std::string& defaultValue, int32_t bufferSize,
                        const std::string& file) override;
  int32_t GetInt(const std::string& section, const std::string& key, int32_t defaultValue,
                 const std::string& file) override;
  int32_t WriteString(const std::string& section, const std::string& key, const std::string& value,
                      const std::string& file) override;
  int32_t DeleteKey(const std::string& section, const std::string& key,
                    const std::string& file) override;
  int32_t DeleteSection(const std::string& section, const std::string& file) override;
};

// The number at the start of a profile value: blanks, a sign, then digits, to base 16, 8 or 2
// behind 0x, 0o or 0b and to base 10 otherwise. 0 without a digit; more than 32 bits keep the
// low 32.
int32_t ProfileNumber(const std::string& value);

}  // namespace logchecker
