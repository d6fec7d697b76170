#include "printing/WholePdf.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace logchecker {

namespace {

constexpr std::string_view kHead = "%PDF-";
constexpr std::string_view kTablePlace = "startxref\n";
constexpr std::string_view kTable = "xref\n";
constexpr std::string_view kEnd = "%%EOF\n";
constexpr std::string_view kBlanks = " \r\n";

}  // namespace

bool IsWholePdf(std::string_view bytes) {
  if (bytes.substr(0, kHead.size()) != kHead) return false;
  const size_t place = bytes.rfind(kTablePlace);
  if (place == std::string_view::npos) return false;
  std::string_view lines = bytes.substr(place + kTablePlace.size());
  size_t table = 0;
  const auto [behind, failed] = std::from_chars(lines.data(), lines.data() + lines.size(), table);
  if (failed != std::errc() || table > place) return false;
  lines.remove_prefix(static_cast<size_t>(behind - lines.data()));
  lines.remove_prefix(std::min(lines.find_first_not_of(kBlanks), lines.size()));
  return lines == kEnd && bytes.substr(table, kTable.size()) == kTable;
}

}  // namespace logchecker
