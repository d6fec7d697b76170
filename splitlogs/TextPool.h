// Keeps the texts of a grid's cells one behind the other, without an allocation for each.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace logchecker {

class TextPool {
 public:
  // A copy of `text` that holds until Clear or the end of the pool.
  std::string_view Keep(std::string_view text);
  void Clear();

 private:
  std::vector<std::unique_ptr<char[]>> chunks_;
  char* next_ = nullptr;
  size_t left_ = 0;
};

}  // namespace logchecker
