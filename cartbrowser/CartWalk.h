// The walk of the search over the store.
#pragma once

#include <cstdint>
#include <functional>

#include "cartbrowser/CartSearch.h"
#include "cartstore/CartRecord.h"

namespace logchecker {

// Progress is shown at the multiples of this.
inline constexpr int32_t kProgressEvery = 100;

// Who watches a walk.
class CartWalkObserver {
 public:
  virtual ~CartWalkObserver() = default;

  // To be seen at once: the walk goes on behind it.
  virtual void ShowProgress(int32_t cartNumber) = 0;
  virtual void AddResult(int32_t cartNumber, const CartInfo& info) = 0;
  // Lets pending events run; called after each cart.
  virtual void Yield() = 0;
};

enum class SearchDirection { kForwards = 0, kBackwards = 1 };

// Where a walk begins: at `startCart`, or at 1 for one of 0 or less; with `fromEnd` at that end of
// the store which lies behind a walk of this direction.
int32_t FirstCartOfWalk(int32_t startCart, SearchDirection direction, bool fromEnd);

// Reads each cart from the first one on, in one direction, up to the end of the store and no
// further. One that begins outside the store walks nothing.
class CartWalk {
 public:
  CartWalk(CartSearch search, int32_t firstCart, SearchDirection direction);

  // Whether there is a cart to look at.
  bool HasCart() const;
  // Looks at one cart and goes on to the next; only while HasCart().
  void Step(CartWalkObserver& observer);
  // Steps to the end, or until `stopped`, which is asked before each cart.
  void Run(CartWalkObserver& observer, const std::function<bool()>& stopped);

 private:
  CartSearch search_;
  int64_t cart_;  // wide enough to step over the last number that there is
  int64_t step_;
};

}  // namespace logchecker
