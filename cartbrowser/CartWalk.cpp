#include "cartbrowser/CartWalk.h"

#include <utility>

#include "cartstore/AudiowallParts.h"
#include "cartstore/LoadCartInfo.h"

namespace logchecker {

int32_t FirstCartOfWalk(int32_t startCart, SearchDirection direction, bool fromEnd) {
  if (fromEnd) return direction == SearchDirection::kForwards ? 1 : gNumberOfCarts;
  return startCart <= 0 ? 1 : startCart;
}

CartWalk::CartWalk(CartSearch search, int32_t firstCart, SearchDirection direction)
    : search_(std::move(search)),
      cart_(firstCart),
      step_(direction == SearchDirection::kForwards ? 1 : -1) {}

bool CartWalk::HasCart() const { return cart_ > 0 && cart_ <= gNumberOfCarts; }

void CartWalk::Step(CartWalkObserver& observer) {
  const auto cartNumber = static_cast<int32_t>(cart_);
  if (cartNumber % kProgressEvery == 0) observer.ShowProgress(cartNumber);
  CartInfo info;
  LoadCartInfo(info, cartNumber);
  if (search_.Matches(cartNumber, info)) observer.AddResult(cartNumber, info);
  observer.Yield();
  cart_ += step_;
}

void CartWalk::Run(CartWalkObserver& observer, const std::function<bool()>& stopped) {
  while (HasCart() && !stopped()) Step(observer);
}

}  // namespace logchecker
