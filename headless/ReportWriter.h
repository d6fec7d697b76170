// A report that is written piece by piece.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace logchecker {

// Writes to a file, which stays as it was until Commit and for good without one; or to standard
// output with an empty path, as the bytes come. Each call throws Trouble when it fails.
class ReportWriter {
 public:
  explicit ReportWriter(const std::string& path);
  ~ReportWriter();
  ReportWriter(const ReportWriter&) = delete;
  ReportWriter& operator=(const ReportWriter&) = delete;

  void Write(std::string_view bytes);
  void Commit();

 private:
  [[noreturn]] void Fail(int32_t error);

  std::string path_;
  int16_t file_ = 0;  // 0 for standard output and behind the end
};

}  // namespace logchecker
