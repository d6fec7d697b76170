// Who is told of carts that can't be read.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace logchecker {

// A cart of the store that could not be read, which callers can't tell from an unused one.
struct UnreadableCart {
  int32_t cart = 0;
  std::string file;   // the list file, or the directory of a part that can't be used
  int32_t error = 0;  // of the read; -1 for a part that can't be used
};

// Called by LoadCartInfo for each such read. One listener at a time, none with an empty one; gives
// back the one that was.
using UnreadableCartListener = std::function<void(const UnreadableCart&)>;
UnreadableCartListener ListenForUnreadableCarts(UnreadableCartListener listener);

// For LoadCartInfo.
void TellUnreadableCart(int32_t cart, const std::string& file, int32_t error);

}  // namespace logchecker
