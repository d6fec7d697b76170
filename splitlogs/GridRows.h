// The rows of a grid, in blocks that stay where they are while the grid grows.
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
  Row& operator[](size_t i) { return (*blocks_[i / kBlock])[i % kBlock]; }
  const Row& operator[](size_t i) const { return (*blocks_[i / kBlock])[i % kBlock]; }

  // New rows are empty, those that were dropped and come back as well.
  void Resize(size_t size) {
    const size_t blocks = (size + kBlock - 1) / kBlock;
    for (size_t i = size; i < size_ && i < blocks * kBlock; ++i) (*this)[i] = Row();
    blocks_.resize(blocks < blocks_.size() ? blocks : blocks_.size());
    while (blocks_.size() < blocks) blocks_.push_back(std::make_unique<Block>());
    size_ = size;
  }

 private:
  static constexpr size_t kBlock = 256;
  using Block = std::array<Row, kBlock>;

  std::vector<std::unique_ptr<Block>> blocks_;
  size_t size_ = 0;
};

}  // namespace logchecker
