#include "cartstore/UnreadableCarts.h"

#include <utility>

namespace logchecker {

namespace {

UnreadableCartListener& Listener() {
  static UnreadableCartListener listener;
  return listener;
}

}  // namespace

UnreadableCartListener ListenForUnreadableCarts(UnreadableCartListener listener) {
  return std::exchange(Listener(), std::move(listener));
}

void TellUnreadableCart(int32_t cart, const std::string& file, int32_t error) {
  if (Listener()) Listener()({cart, file, error});
}

}  // namespace logchecker
