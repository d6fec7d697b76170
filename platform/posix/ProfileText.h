// The text of a profile file: its sections and keys, and the change of one of them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/posix/ProfileEncoding.h"

namespace logchecker {

// Names compare without regard to case. The first section of a name is the one that counts, and in
// it the first key of a name. Every line that a change does not concern keeps its bytes, its line
// end with them. Names and values are station text, with "?" for what it can't hold, in a file of
// any encoding; what is written has the file's own.
class ProfileText {
 public:
  ProfileText() = default;
  explicit ProfileText(std::string_view fileBytes);

  // The value as it stands behind "=", without blanks around it and without one pair of quotes;
  // null where the key is missing. The pointer holds until the next change.
  const std::string* Find(const std::string& section, const std::string& key) const;

  void Set(const std::string& section, const std::string& key, const std::string& value);
  void DeleteKey(const std::string& section, const std::string& key);
  void DeleteSection(const std::string& section);

  std::string Bytes() const;

 private:
  struct Line {
    std::string bytes;  // with its line end, as DecodeProfile gives it
    bool isSection = false;
    std::string name;  // of the section or the key, in upper case; empty for any other line
    std::string value;
  };

  static constexpr size_t kNone = static_cast<size_t>(-1);

  Line ParseLine(std::string_view bytes) const;
  // Station text as a line's bytes hold it.
  std::string ForLine(std::string_view stationText) const;
  void IndexLines();
  size_t SectionLine(const std::string& section) const;
  size_t KeyLine(const std::string& section, const std::string& key) const;
  void EndLastLine();

  ProfileEncoding encoding_ = ProfileEncoding::kStation;
  std::string halfUnit_;  // behind the last line, of a file that was cut off
  std::vector<Line> lines_;
  std::string lineEnd_ = "\r\n";
  std::unordered_map<std::string, size_t> sections_;
  std::unordered_map<std::string, size_t> keys_;  // by section, a NUL, and key
};

}  // namespace logchecker
