#include "splitlogs/GridCell.h"

#include <charconv>

#include "common/TimeText.h"

namespace logchecker {

void GridCell::MakeText(TextPool& pool) {
  if (held_.size == kNumber) {
    char digits[16];
    char* const end =
        std::to_chars(digits, digits + sizeof digits, static_cast<int32_t>(held_.place)).ptr;
    held_ = pool.Keep({digits, static_cast<size_t>(end - digits)});
  } else {
    const auto seconds = std::bit_cast<float>(held_.place);
    held_ = pool.Keep(TimeDisplay::OfLength(seconds, LengthMask(held_.size == kFineLength)));
  }
}

}  // namespace logchecker
