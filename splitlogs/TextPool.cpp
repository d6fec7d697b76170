#include "splitlogs/TextPool.h"

#include <algorithm>
#include <cstring>

namespace logchecker {

std::string_view TextPool::Keep(std::string_view text) {
  constexpr size_t kChunk = size_t{32} * 1024;
  if (text.empty()) return {};
  if (text.size() > left_) {
    left_ = std::max(text.size(), kChunk);
    chunks_.push_back(std::make_unique_for_overwrite<char[]>(left_));
    next_ = chunks_.back().get();
  }
  std::memcpy(next_, text.data(), text.size());
  const std::string_view kept(next_, text.size());
  next_ += text.size();
  left_ -= text.size();
  return kept;
}

void TextPool::Clear() {
  chunks_.clear();
  next_ = nullptr;
  left_ = 0;
}

}  // namespace logchecker
