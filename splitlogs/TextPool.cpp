#include "splitlogs/TextPool.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "common/ErrorState.h"

namespace logchecker {

void TextPool::Grow(size_t size) {
  constexpr uint64_t kMostPlaces = uint64_t{std::numeric_limits<uint32_t>::max()} + 1;
  left_ = std::max(size, kChunk);
  place_ = chunks_.size() * kChunk;
  if (place_ + left_ > kMostPlaces) throw RunTimeError(kOutOfMemory, "more than 4 GiB of text");
  chunks_.push_back(std::make_unique_for_overwrite<char[]>(left_));
  next_ = chunks_.back().get();
  chunks_.resize(chunks_.size() + (left_ - 1) / kChunk);
}

PooledText TextPool::Keep(std::string_view text) {
  if (text.empty()) return {};
  if (text.size() > left_) Grow(text.size());
  std::memcpy(next_, text.data(), text.size());
  const PooledText kept{static_cast<uint32_t>(place_), static_cast<uint32_t>(text.size())};
  next_ += text.size();
  place_ += text.size();
  left_ -= text.size();
  return kept;
}

void TextPool::Clear() {
  chunks_.clear();
  next_ = nullptr;
  place_ = 0;
  left_ = 0;
}

}  // namespace logchecker
