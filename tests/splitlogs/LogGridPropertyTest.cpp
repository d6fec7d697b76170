// The grid against a plain table of texts, under random changes.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "splitlogs/LogGrid.h"

namespace logchecker {
namespace {

using RowTexts = std::array<std::string, kLogColumns>;

RC_GTEST_PROP(LogGridProperty, EachCellHoldsWhatWasLastPutThere, ()) {
  LogGrid grid;
  std::vector<RowTexts> plain(1);
  const int changes = *rc::gen::inRange(1, 60);
  for (int i = 0; i < changes; ++i) {
    if (plain.size() == 1 || *rc::gen::inRange(0, 6) == 0) {
      // On both sides of the sizes at which memory is taken or given back.
      const auto rows = *rc::gen::element<size_t>(1, 2, 200, 255, 256, 257, 300, 512, 513, 1540);
      grid.SetRows(static_cast<int32_t>(rows));
      plain.resize(rows);
      continue;
    }
    const auto row = *rc::gen::inRange<size_t>(1, plain.size());
    const auto column = *rc::gen::inRange<size_t>(0, kLogColumns);
    const auto length = *rc::gen::weightedElement<size_t>({{20, 0}, {20, 5}, {1, 40000}});
    const std::string text(length, static_cast<char>('A' + i % 26));
    grid.SetText(static_cast<int32_t>(row), static_cast<int32_t>(column), text);
    plain[row][column] = text;
  }
  RC_ASSERT(grid.Rows() == static_cast<int32_t>(plain.size()));
  for (size_t row = 1; row < plain.size(); ++row) {
    for (size_t column = 0; column < kLogColumns; ++column) {
      RC_ASSERT(grid.Text(static_cast<int32_t>(row), static_cast<int32_t>(column)) ==
                plain[row][column]);
    }
  }
}

}  // namespace
}  // namespace logchecker
