// Keys of sectioned text files ("profile files").
#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

namespace logchecker {

// Whether a name or a value is a text that one line of a profile file can hold. A line break in it
// would end the line, and what follows would be read as keys or as another section.
inline bool FitsALine(std::string_view text) {
  return std::none_of(text.begin(), text.end(),
                      [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; });
}

// Whether a profile file can be read, and why not. What is no file is a directory, a pipe, a
// device.
enum class ProfileState { kReadable, kMissing, kRefused, kNoFile, kTooLarge };

// A bare file name means the Windows folder. Section and key names compare without regard to case,
// and the first match wins. A mark at its beginning tells that a file is in UTF-8 or in 16-bit
// units, else it is in the station's code page. A file that can't be read counts as empty.
class ProfileFiles {
 public:
  virtual ~ProfileFiles() = default;

  virtual ProfileState StateOf(const std::string& file) = 0;

  // The value without blanks around it and without one pair of quotes, cut to `bufferSize` - 1
  // bytes; `defaultValue` (without trailing blanks) where the key is missing.
  virtual std::string GetString(const std::string& section, const std::string& key,
                                const std::string& defaultValue, int32_t bufferSize,
                                const std::string& file) = 0;

  // The whole number at the start of the value: a sign, then decimal digits, or hexadecimal ones
  // after 0x. Letters give 0, a missing or empty value gives `defaultValue`, and a number of more
  // than 32 bits keeps its low 32.
  virtual int32_t GetInt(const std::string& section, const std::string& key, int32_t defaultValue,
                         const std::string& file) = 0;

  // Writes one key, making file and section where they are missing. All other lines stay. The file
  // is written whole or not at all. Returns an error number; kInvalidCall for a name or a value
  // that does not fit a line.
  virtual int32_t WriteString(const std::string& section, const std::string& key,
                              const std::string& value, const std::string& file) = 0;
  virtual int32_t DeleteKey(const std::string& section, const std::string& key,
                            const std::string& file) = 0;
  virtual int32_t DeleteSection(const std::string& section, const std::string& file) = 0;
};

}  // namespace logchecker
