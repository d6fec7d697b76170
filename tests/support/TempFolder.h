// A folder of its own for a test.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace logchecker {

// Made empty, and removed at the end with all that it holds by then.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  // As the station would write it, without a separator at its end.
  std::string Path() const;
  // The same with a separator and `name` behind it.
  std::string Path(std::string_view name) const;

  // The bytes of a file in the folder, without the platform's help. A JSON report among what is
  // read is kept (see KeepReport.h).
  void WriteFile(std::string_view name, std::string_view bytes) const;
  std::string ReadFile(std::string_view name) const;

  bool Exists(std::string_view name) const;
  // How many entries the folder has.
  size_t Count() const;

 private:
  std::filesystem::path folder_;
};

}  // namespace logchecker
