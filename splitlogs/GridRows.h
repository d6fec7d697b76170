// The rows of a grid, in blocks that stay where they are while the grid grows, and that are made
// when a row of theirs is first filled.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace logchecker {

template <typename Row>
class GridRows {
 public:
  size_t size() const { return size_; }
  Row& operator[](size_t i) {
    std::unique_ptr<Block>& block = blocks_[i / kBlock];
    if (!block) block = std::make_unique<Block>();
    return (*block)[i % kBlock];
  }
  const Row& operator[](size_t i) const {
    static const Row empty{};
    const std::unique_ptr<Block>& block = blocks_[i / kBlock];
    return block ? (*block)[i % kBlock] : empty;
  }

  // New rows are empty, those that were dropped and come back as well.
  void Resize(size_t size) {
    const size_t blocks = (size + kBlock - 1) / kBlock;
    for (size_t i = size; i < size_ && i < blocks * kBlock; ++i) {
      if (blocks_[i / kBlock]) (*this)[i] = Row();
    }
    blocks_.resize(blocks);
    size_ = size;
  }

 private:
  static constexpr size_t kBlock = 256;
  using Block = std::array<Row, kBlock>;

  std::vector<std::unique_ptr<Block>> blocks_;
  size_t size_ = 0;
};

}  // namespace logchecker
