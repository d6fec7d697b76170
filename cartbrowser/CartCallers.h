// How the windows of the store hand their result to whoever opened them.
#pragma once

#include <cstdint>
#include <functional>

namespace logchecker {

// What the search calls when it closes: with the cart that was chosen, or 0.
class CartJumper {
 public:
  virtual ~CartJumper() = default;
  virtual void JumpToCart(int32_t cartNumber) = 0;
};

// What the browser calls when it closes with a result: the cart that was chosen, or 0. An opener
// that does not want to hear of it is nothing to the browser. The browser is hidden by then and
// must outlive the call.
class CartDisplay {
 public:
  virtual ~CartDisplay() = default;
  virtual void UpdateDisplay(int32_t cartNumber) = 0;
};

// Calls a window that may fail to answer, which is no concern of the caller's: errors end here.
void CallIgnoringErrors(const std::function<void()>& call);

}  // namespace logchecker
