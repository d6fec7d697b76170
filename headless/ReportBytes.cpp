#include "headless/ReportBytes.h"

namespace logchecker {

// In pieces, so that the limits are looked at however much comes at once.
void ReportBytes::More() {
  constexpr size_t kPiece = size_t{1} << 16U;
  before_ = Count();
  if (before_ - sinceReport_ > kMostReportBytes) failure_ = "is longer than 1 GiB";
  if (before_ - sinceValue_ > kLongestReportValue) failure_ = "holds a value of more than 1 MiB";
  if (rest_.empty() && failure_.empty()) rest_ = next_();
  const std::string_view piece = failure_.empty() ? rest_.substr(0, kPiece) : std::string_view();
  rest_.remove_prefix(piece.size());
  begin_ = place_ = piece.data();
  end_ = begin_ + piece.size();
}

}  // namespace logchecker
