#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <cmath>

#include "common/Numbers.h"

namespace logchecker {
namespace {

RC_GTEST_PROP(RoundHalfEvenProperty, EqualsTheRoundingOfTheMachine, (int n, int d)) {
  const double value = d == 0 ? n / 2.0 : static_cast<double>(n) / d;
  RC_ASSERT(RoundHalfEven(value) == std::nearbyint(value));
}

RC_GTEST_PROP(ValProperty, BlanksAnywhereChangeNothing, (int number)) {
  const std::string text = std::to_string(number);
  std::string spaced;
  for (const char c : text) {
    spaced += std::string(*rc::gen::inRange<size_t>(0, 3), ' ') + c;
  }
  RC_ASSERT(Val(spaced) == number);
  RC_ASSERT(Val(spaced + "x9") == number);
}

RC_GTEST_PROP(ValProperty, AnyTextGivesSomeNumber, (const std::string& text)) {
  RC_ASSERT(!std::isnan(Val(text)));
}

}  // namespace
}  // namespace logchecker
