// One cell of a grid.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

#include "splitlogs/TextPool.h"

namespace logchecker {

// Holds a text in a pool, or the number that its text shows: that text is made when someone first
// looks at it, since nobody looks at most of a heavy day's cells.
class GridCell {
 public:
  GridCell() = default;
  explicit GridCell(PooledText text) : held_(text) {}
  // Shown in decimal.
  static GridCell OfNumber(int32_t number) {
    return GridCell({static_cast<uint32_t>(number), kNumber});
  }
  // Shown as a length, with or without hundredths.
  static GridCell OfLength(float seconds, bool hundredths) {
    return GridCell({std::bit_cast<uint32_t>(seconds), hundredths ? kFineLength : kLength});
  }

  std::string_view Text(TextPool& pool) {
    if (held_.size >= kLength) MakeText(pool);
    return pool.Text(held_);
  }
  bool IsEmpty() const { return held_.size == 0; }
  // The whole number that the text shows, where it has not been made yet.
  std::optional<int32_t> Number() const {
    return held_.size == kNumber ? std::optional(static_cast<int32_t>(held_.place)) : std::nullopt;
  }

 private:
  // Sizes that no text has.
  static constexpr uint32_t kNumber = std::numeric_limits<uint32_t>::max();
  static constexpr uint32_t kFineLength = kNumber - 1;
  static constexpr uint32_t kLength = kNumber - 2;

  void MakeText(TextPool& pool);

  PooledText held_;
};

}  // namespace logchecker
