#include "cartbrowser/FoundCarts.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "common/TimeText.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr int32_t kNumberWidth = 700;
constexpr int32_t kLengthWidth = 700;

// What a list has beside its line columns: frame, number, length, scroll bar, slack.
constexpr double kBesideLines = 90 + kNumberWidth + kLengthWidth + 225 + 30;

std::string TrimmedLine(const CartLine& line) {
  return std::string(Trim(std::string_view(line.data(), line.size())));
}

std::string SixDigits(const std::string& digits) {
  constexpr size_t kDigits = 6;
  return digits.size() < kDigits ? std::string(kDigits - digits.size(), '0') + digits : digits;
}

}  // namespace

std::array<FoundColumnHeader, kFoundColumnCount> FoundColumnHeaders(double listWidth) {
  const auto lineWidth = ToInt32(RoundHalfEven(listWidth - kBesideLines) / 3);
  return {{{"cart", "", 0},
           {"cartno", "Cart", kNumberWidth},
           {"line1", "Line 1", lineWidth},
           {"line2", "Line 2", lineWidth},
           {"line3", "Line 3", lineWidth},
           {"length", "Length", kLengthWidth}}};
}

int32_t FoundCart::Number() const { return ToInt32(Val(texts[kFoundSortNumber])); }

void FoundCarts::Clear() {
  carts_.clear();
  sortTexts_.clear();
  order_.clear();
  selected_.reset();
}

size_t FoundCarts::Add(int32_t cartNumber, const CartInfo& info) {
  const std::string digits = std::to_string(cartNumber);
  return Insert({"c" + digits,
                 {SixDigits(digits), digits, TrimmedLine(info.Line1), TrimmedLine(info.Line2),
                  TrimmedLine(info.Line3),
                  std::string(Trim(FormatLengthDisplay(info.Length, LengthMask(false))))}});
}

size_t FoundCarts::AddNoneFound() { return Insert({"", {"0", "", "No carts found."}}); }

size_t FoundCarts::Insert(FoundCart cart) {
  const size_t index = carts_.size();
  if (sortedColumn_) sortTexts_.push_back(ToUpper(cart.texts[*sortedColumn_]));
  carts_.push_back(std::move(cart));
  auto place = order_.end();
  if (sortedColumn_) {
    place = std::upper_bound(order_.begin(), order_.end(), index,
                             [this](size_t a, size_t b) { return ComesBefore(a, b); });
  }
  place = order_.insert(place, index);
  return static_cast<size_t>(place - order_.begin());
}

void FoundCarts::ClickHeader(FoundColumn column) {
  const FoundColumn sortColumn = column == kFoundNumber ? kFoundSortNumber : column;
  if (sortedColumn_ == sortColumn) descending_ = !descending_;
  sortedColumn_ = sortColumn;
  Sort();
}

std::optional<FoundColumn> FoundCarts::SortedColumn() const {
  return sortedColumn_ == kFoundSortNumber ? kFoundNumber : sortedColumn_;
}

bool FoundCarts::ComesBefore(size_t a, size_t b) const {
  return descending_ ? sortTexts_[b] < sortTexts_[a] : sortTexts_[a] < sortTexts_[b];
}

void FoundCarts::Sort() {
  sortTexts_.clear();
  for (const FoundCart& cart : carts_) sortTexts_.push_back(ToUpper(cart.texts[*sortedColumn_]));
  std::stable_sort(order_.begin(), order_.end(),
                   [this](size_t a, size_t b) { return ComesBefore(a, b); });
}

std::optional<size_t> FoundCarts::SelectedRow() const {
  if (!selected_) return std::nullopt;
  return static_cast<size_t>(std::find(order_.begin(), order_.end(), *selected_) - order_.begin());
}

void FoundCarts::Select(std::optional<size_t> row) {
  selected_.reset();
  if (row && *row < order_.size()) selected_ = order_[*row];
}

}  // namespace logchecker
