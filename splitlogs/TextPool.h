// Keeps the texts of a grid's cells one behind the other, without an allocation for each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace logchecker {

// Where a text lies in its pool; half of what a view takes, since a heavy day has a million of
// them.
struct PooledText {
  uint32_t place = 0;
  uint32_t size = 0;
};

class TextPool {
 public:
  // A copy of `text` that holds until Clear or the end of the pool. Stops the program when the pool
  // would hold more than 4 GiB.
  PooledText Keep(std::string_view text);
  std::string_view Text(PooledText kept) const {
    if (kept.size == 0) return {};
    return {chunks_[kept.place / kChunk].get() + kept.place % kChunk, kept.size};
  }
  void Clear();

 private:
  static constexpr size_t kChunk = size_t{32} * 1024;

  // Makes room for a text of this size.
  void Grow(size_t size);

  // A longer chunk takes the places of several and holds one text.
  std::vector<std::unique_ptr<char[]>> chunks_;
  char* next_ = nullptr;
  size_t place_ = 0;  // of next_
  size_t left_ = 0;
};

}  // namespace logchecker
