// The rule of the search: does this cart match?
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "cartstore/CartRecord.h"

namespace logchecker {

// Matches every cart in use when it is the whole search text; the only wildcard there is.
inline constexpr char kAnyText[] = "*";

// What the user asks for.
struct SearchRules {
  std::string Text;         // blanks around it don't count
  bool LimitLines = false;  // look at the ticked Lines one by one, instead of at the description
  std::array<bool, 3> Lines = {true, true, true};
  bool Notes = false;  // look into the notes where the text is not in the lines
  bool TimeRules = false;
  float Length = 0;       // seconds; with TimeRules
  int32_t Tolerance = 0;  // seconds either way; with TimeRules
};

// Keeps the rules in the form in which they are compared, and the memory that reading notes takes,
// so one object serves for a whole walk.
class CartSearch {
 public:
  explicit CartSearch(const SearchRules& rules);

  // `info` is the cart as LoadCartInfo gives it: a blank one never matches. Upper and lower case
  // are the same. An empty search text is found in any text but an empty one; so not in the
  // description of a cart without words, but in each of its lines, which are 50 blanks: this is
  // meant.
  bool Matches(int32_t cartNumber, const CartInfo& info);

 private:
  bool TextMatches(int32_t cartNumber, const CartInfo& info);
  bool OccursInLines(const CartInfo& info);
  bool OccursInNotes(int32_t cartNumber);
  bool OccursIn(std::string_view text);
  // Strictly between the bounds, which lie one second further out than the tolerance: this is
  // meant.
  bool LengthMatches(float length) const;

  SearchRules rules_;
  std::array<char, 256> upper_;  // of each character of the code page
  std::string wanted_;           // in upper case
  std::string description_;
  std::string notes_;
  std::string folded_;
};

}  // namespace logchecker
