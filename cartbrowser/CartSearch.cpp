#include "cartbrowser/CartSearch.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include "cartbrowser/CartNotes.h"
#include "cartstore/BlankCart.h"
#include "common/TextHelpers.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr double kExtraSecond = 1;

std::array<char, 256> UpperCaseTable() {
  std::array<char, 256> table{};
  std::string all(table.size(), '\0');
  std::iota(all.begin(), all.end(), '\0');
  const std::string upper = ToUpper(all);
  std::copy(upper.begin(), upper.end(), table.begin());
  return table;
}

std::string_view TextOf(const CartLine& line) { return {line.data(), line.size()}; }

}  // namespace

CartSearch::CartSearch(const SearchRules& rules)
    : rules_(rules), upper_(UpperCaseTable()), wanted_(ToUpper(Trim(rules.Text))) {}

bool CartSearch::Matches(int32_t cartNumber, const CartInfo& info) {
  if (info.TotalLength == gBlankCartInfo.TotalLength) return false;
  // The length comes first since notes are slow to read; the order does not show.
  if (rules_.TimeRules && !LengthMatches(info.Length)) return false;
  return TextMatches(cartNumber, info);
}

bool CartSearch::TextMatches(int32_t cartNumber, const CartInfo& info) {
  if (wanted_ == kAnyText) return true;
  const bool inLines = rules_.LimitLines ? OccursInLines(info)
                                         : OccursIn(GetCartDescription(info, true, description_));
  return inLines || (rules_.Notes && OccursInNotes(cartNumber));
}

bool CartSearch::OccursInLines(const CartInfo& info) {
  return (rules_.Lines[0] && OccursIn(TextOf(info.Line1))) ||
         (rules_.Lines[1] && OccursIn(TextOf(info.Line2))) ||
         (rules_.Lines[2] && OccursIn(TextOf(info.Line3)));
}

bool CartSearch::OccursInNotes(int32_t cartNumber) {
  const std::optional<std::string> file = FindCartNotes(cartNumber);
  if (!file) return false;
  ReadNotesStart(*file, notes_);
  return OccursIn(notes_);
}

bool CartSearch::OccursIn(std::string_view text) {
  if (text.empty()) return false;
  folded_.resize(text.size());
  std::transform(text.begin(), text.end(), folded_.begin(),
                 [this](char c) { return upper_[static_cast<unsigned char>(c)]; });
  return folded_.find(wanted_) != std::string::npos;
}

bool CartSearch::LengthMatches(float length) const {
  const double target = rules_.Length;
  const auto low = static_cast<float>(target - rules_.Tolerance - kExtraSecond);
  const auto high = static_cast<float>(target + rules_.Tolerance + kExtraSecond);
  return low < length && length < high;
}

}  // namespace logchecker
