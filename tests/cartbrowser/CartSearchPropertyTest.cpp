#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "cartbrowser/CartSearch.h"
#include "cartbrowser/FoundCarts.h"
#include "cartstore/BlankCart.h"
#include "common/TextHelpers.h"
#include "platform/StationText.h"

namespace logchecker {
namespace {

// Few letters, so that texts are often found.
std::string RandomText(int longest) {
  const auto length = static_cast<size_t>(*rc::gen::inRange(0, longest + 1));
  return *rc::gen::container<std::string>(length,
                                          rc::gen::element('a', 'A', 'b', ' ', '*', '\xE9'));
}

CartLine RandomLine() {
  CartLine line;
  line.fill(' ');
  const std::string text = RandomText(50);
  std::copy(text.begin(), text.end(), line.begin());
  return line;
}

bool Occurs(const std::string& wanted, std::string_view text) {
  return !text.empty() && ToUpper(text).find(ToUpper(wanted)) != std::string::npos;
}

std::string_view Text(const CartLine& line) { return {line.data(), line.size()}; }

RC_GTEST_PROP(CartSearchProperty, IsThePlainRule, ()) {
  InitialiseBlankCart();
  SearchRules rules;
  rules.Text = RandomText(3);
  rules.LimitLines = *rc::gen::arbitrary<bool>();
  rules.Lines = {*rc::gen::arbitrary<bool>(), *rc::gen::arbitrary<bool>(),
                 *rc::gen::arbitrary<bool>()};
  rules.TimeRules = *rc::gen::arbitrary<bool>();
  rules.Length = static_cast<float>(*rc::gen::inRange(0, 40));
  rules.Tolerance = *rc::gen::inRange(0, 10);
  CartInfo cart = gBlankCartInfo;
  cart.TotalLength = static_cast<float>(*rc::gen::inRange(-1, 3));
  cart.Length = static_cast<float>(*rc::gen::inRange(0, 160)) / 4;
  cart.Line1 = RandomLine();
  cart.Line2 = RandomLine();
  cart.Line3 = RandomLine();

  const std::string wanted(Trim(rules.Text));
  std::string description;
  bool found = false;
  if (wanted == "*") {
    found = true;
  } else if (!rules.LimitLines) {
    found = Occurs(wanted, GetCartDescription(cart, true, description));
  } else {
    found = (rules.Lines[0] && Occurs(wanted, Text(cart.Line1))) ||
            (rules.Lines[1] && Occurs(wanted, Text(cart.Line2))) ||
            (rules.Lines[2] && Occurs(wanted, Text(cart.Line3)));
  }
  if (cart.TotalLength == -1) found = false;
  const auto around = static_cast<float>(rules.Tolerance + 1);
  if (rules.TimeRules &&
      (rules.Length - around >= cart.Length || rules.Length + around <= cart.Length)) {
    found = false;
  }
  RC_ASSERT(CartSearch(rules).Matches(1, cart) == found);
}

std::vector<int32_t> Numbers(const FoundCarts& found) {
  std::vector<int32_t> numbers;
  for (size_t row = 0; row < found.Count(); ++row) numbers.push_back(found.Row(row).Number());
  return numbers;
}

// Clicks and rows come in any order; the same clicks on an empty list, with the rows behind them,
// give a list that is sorted as one.
RC_GTEST_PROP(FoundCartsProperty, RowsAreSortedWheneverTheyCome, ()) {
  const auto column = *rc::gen::element(kFoundNumber, kFoundLine1);
  const int clicks = *rc::gen::inRange(1, 3);
  const auto numbers = *rc::gen::unique<std::vector<int32_t>>(rc::gen::inRange(1, 1000));
  FoundCarts before;
  FoundCarts after;
  for (int click = 0; click < clicks; ++click) before.ClickHeader(column);
  for (const int32_t number : numbers) {
    CartInfo cart = gBlankCartInfo;
    cart.Line1 = RandomLine();
    after.Add(number, cart);
    const size_t row = before.Add(number, cart);
    RC_ASSERT(before.Row(row).Number() == number);
  }
  for (int click = 0; click < clicks; ++click) after.ClickHeader(column);
  const auto key = [&](const FoundCarts& found, size_t row) {
    return ToUpper(found.Row(row).texts[column == kFoundNumber ? kFoundSortNumber : column]);
  };
  for (const FoundCarts* found : {&before, &after}) {
    RC_ASSERT(found->Count() == numbers.size());
    for (size_t row = 1; row < found->Count(); ++row) {
      const std::string above = key(*found, row - 1);
      const std::string below = key(*found, row);
      RC_ASSERT((clicks == 1 ? above <= below : below <= above));
    }
  }
  if (column == kFoundNumber) RC_ASSERT(Numbers(before) == Numbers(after));
}

}  // namespace
}  // namespace logchecker
