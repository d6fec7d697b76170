// Takes delimited text of quoted fields apart again.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace logchecker {

using CSVFields = std::vector<std::string>;

// The fields of each line, whatever stands inside the quotes; a delimiter has `delimiterLength`
// bytes. Nothing where the text is no such lines, each ended by CR LF.
inline std::optional<std::vector<CSVFields>> ReadCSV(std::string_view text,
                                                     size_t delimiterLength) {
  std::vector<CSVFields> lines(1);
  while (!text.empty()) {
    if (text.front() != '"') return std::nullopt;
    const size_t close = text.find('"', 1);
    if (close == std::string_view::npos) return std::nullopt;
    lines.back().emplace_back(text.substr(1, close - 1));
    text.remove_prefix(close + 1);
    if (text.substr(0, 2) == "\r\n") {
      text.remove_prefix(2);
      lines.emplace_back();
    } else if (text.size() < delimiterLength) {
      return std::nullopt;
    } else {
      text.remove_prefix(delimiterLength);
    }
  }
  if (!lines.back().empty()) return std::nullopt;
  lines.pop_back();
  return lines;
}

}  // namespace logchecker
