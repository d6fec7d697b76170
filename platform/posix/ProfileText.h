// The text of a profile file: its sections and keys, and the change of one of them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace logchecker {

// Names compare without regard to case. The first section of a name is the one that counts, and in
// it the first key of a name. Every line that a change does not concern keeps its bytes, its line
// end with them.
class ProfileText {
 public:
  ProfileText() = default;
  explicit ProfileText(std::string_view bytes);

  // The value as it stands behind "=", without blanks around it and without one pair of quotes;
  // null where the key is missing. The pointer holds until the next change.
  const std::string* Find(const std::string& section, const std::string& key) const;

  void Set(const std::string& section, const std::string& key, const std::string& value);
  void DeleteKey(const std::string& section, const std::string& key);
  void DeleteSection(const std::string& section);

  std::string Bytes() const;

 private:
  struct Line {
    std::string bytes;  // with its line end
    bool isSection = false;
    std::string name;  // of the section or the key, in upper case; empty for any other line
    std::string value;
  };

  static constexpr size_t kNone = static_cast<size_t>(-1);

  static Line ParseLine(std::string_view bytes);
  void IndexLines();
  size_t SectionLine(const std::string& section) const;
  size_t KeyLine(const std::string& section, const std::string& key) const;
  void EndLastLine();

  std::vector<Line> lines_;
  std::string lineEnd_ = "\r\n";
  std::unordered_map<std::string, size_t> sections_;
  std::unordered_map<std::string, size_t> keys_;  // by section, a NUL, and key
};

}  // namespace logchecker
