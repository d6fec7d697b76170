// The list of what a search found: columns, rows, their order and the selected one.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "cartstore/CartRecord.h"

namespace logchecker {

enum FoundColumn : size_t {
  kFoundSortNumber,  // six digits, hidden: sorts as text as the number does
  kFoundNumber,      // what the user reads
  kFoundLine1,
  kFoundLine2,
  kFoundLine3,
  kFoundLength,
  kFoundColumnCount
};

struct FoundColumnHeader {
  const char* key;
  const char* caption;
  int32_t width;  // twips; 0 hides the column
};

// The columns for a list of this width in twips.
std::array<FoundColumnHeader, kFoundColumnCount> FoundColumnHeaders(double listWidth);

struct FoundCart {
  std::string key;  // "c" and the number; empty for the row that says that there are none
  std::array<std::string, kFoundColumnCount> texts;

  // The cart's number; 0 for the row that says that there are none.
  int32_t Number() const;
};

// Rows are counted from 0, as they are shown. Rows that move keep their selection.
class FoundCarts {
 public:
  size_t Count() const { return order_.size(); }
  const FoundCart& Row(size_t row) const { return carts_[order_[row]]; }

  void Clear();
  // Each returns the row that was added: the last one, or once the list is sorted the one where it
  // belongs.
  size_t Add(int32_t cartNumber, const CartInfo& info);
  size_t AddNoneFound();

  // Turns sorting on for good. The visible number sorts by the hidden one, any other column by its
  // text, lengths too. A click on the column that the list is sorted by turns the order round; a
  // click on another keeps the order.
  void ClickHeader(FoundColumn column);
  // The column whose header was clicked last, for its mark; nothing before the first click.
  std::optional<FoundColumn> SortedColumn() const;
  bool Descending() const { return descending_; }

  std::optional<size_t> SelectedRow() const;
  void Select(std::optional<size_t> row);

 private:
  size_t Insert(FoundCart cart);
  bool ComesBefore(size_t a, size_t b) const;
  void Sort();

  std::deque<FoundCart> carts_;              // as they were found
  std::vector<std::string> sortTexts_;       // of each, in upper case; empty while not sorted
  std::vector<size_t> order_;                // as they are shown: indexes into carts_
  std::optional<size_t> selected_;           // index into carts_
  std::optional<FoundColumn> sortedColumn_;  // whose text sorts
  bool descending_ = false;
};

}  // namespace logchecker
