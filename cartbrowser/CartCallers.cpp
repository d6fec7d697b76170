#include "cartbrowser/CartCallers.h"

#include <exception>

#include "common/ErrorState.h"

namespace logchecker {

void CallIgnoringErrors(const std::function<void()>& call) {
  try {
    call();
  } catch (const std::exception&) {
    ClearError();
  }
}

}  // namespace logchecker
