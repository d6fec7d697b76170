// The grid against a plain table of texts, under random changes.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "common/TimeText.h"
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
    const auto length = *rc::gen::weightedElement<size_t>(
        {{20, 0}, {20, 5}, {1, 32767}, {1, 32768}, {1, 40000}, {1, 65537}});
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

AdvertCells RandomAdvert(const std::string& text) {
  AdvertCells cells;
  cells.position = *rc::gen::element<int64_t>(1, 42, 2147483647, 2147483648, 123456789012);
  cells.description = std::string_view(text).substr(0, text.size() / 2);
  cells.reference = std::string_view(text).substr(text.size() / 2);
  cells.cart = *rc::gen::oneOf(rc::gen::arbitrary<int32_t>(), rc::gen::inRange(0, 9999));
  if (*rc::gen::arbitrary<bool>()) cells.length = *rc::gen::arbitrary<float>();
  cells.hundredths = *rc::gen::arbitrary<bool>();
  cells.lengthColour = *rc::gen::element(kRed, kWhite, kGridOwnColour);
  return cells;
}

void SetCellByCell(LogGrid& grid, int32_t row, const AdvertCells& cells) {
  grid.SetText(row, kPositionColumn, std::to_string(cells.position));
  grid.SetText(row, kDescriptionColumn, cells.description);
  grid.SetText(row, kReferenceColumn, cells.reference);
  grid.SetText(row, kCartColumn, std::to_string(cells.cart));
  grid.SetText(
      row, kLengthColumn,
      cells.length ? FormatLengthDisplay(*cells.length, cells.hundredths ? 201 : 202) : "--:--");
  grid.SetRow(row);
  grid.SetColumn(kLengthColumn);
  grid.SetCellBackColour(cells.lengthColour);
}

void RequireSameRow(const LogGrid& grid, const LogGrid& plain, int32_t row) {
  RC_ASSERT(grid.RowCart(row) == ToInt32(Val(plain.Text(row, kCartColumn))));
  RC_ASSERT(grid.IsAdvertRow(row) == !Trim(plain.Text(row, kPositionColumn)).empty());
  for (int32_t column = 0; column < kLogColumns; ++column) {
    RC_ASSERT(grid.BackColour(row, column) == plain.BackColour(row, column));
    if (*rc::gen::arbitrary<bool>()) continue;
    RC_ASSERT(grid.Text(row, column) == plain.Text(row, column));
  }
}

RC_GTEST_PROP(LogGridProperty, AnAdvertIsWhatItsCellsAreOneByOne, ()) {
  constexpr int32_t kRows = 12;
  LogGrid grid;
  LogGrid plain;
  grid.SetRows(kRows);
  plain.SetRows(kRows);
  const int changes = *rc::gen::inRange(1, 40);
  for (int i = 0; i < changes; ++i) {
    const auto row = *rc::gen::inRange<int32_t>(1, kRows);
    const auto text = *rc::gen::arbitrary<std::string>();
    const int kind = *rc::gen::inRange(0, 3);
    if (kind == 0) {
      const AdvertCells cells = RandomAdvert(text);
      grid.SetAdvert(row, cells);
      SetCellByCell(plain, row, cells);
    } else if (kind == 1) {
      const auto column = *rc::gen::inRange<int32_t>(0, kLogColumns);
      const auto cell = *rc::gen::element<std::string>("", " ", "12", "-7 ", "4e9", text);
      grid.SetText(row, column, cell);
      plain.SetText(row, column, cell);
    } else {
      const auto column = *rc::gen::inRange<int32_t>(0, kLogColumns);
      const auto length = *rc::gen::arbitrary<float>();
      grid.SetLength(row, column, length, false);
      plain.SetText(row, column, FormatLengthDisplay(length, 202));
    }
    RequireSameRow(grid, plain, *rc::gen::inRange<int32_t>(1, kRows));
  }
  for (int32_t row = 1; row < kRows; ++row) {
    for (int32_t column = 0; column < kLogColumns; ++column) {
      RC_ASSERT(grid.Text(row, column) == plain.Text(row, column));
    }
    RequireSameRow(grid, plain, row);
    RC_ASSERT(grid.RowTime(row) == plain.RowTime(row));
  }
}

}  // namespace
}  // namespace logchecker
