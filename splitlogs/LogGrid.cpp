#include "splitlogs/LogGrid.h"

#include <algorithm>
#include <limits>
#include <string>

#include "common/ErrorState.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "common/TimeText.h"

namespace logchecker {

const std::array<ColumnHeader, kLogColumns> kLogColumnHeaders = {{
    {"Time", 500, ColumnAlignment::kLeft},
    {"Description", 2500, ColumnAlignment::kLeft},
    {"Reference", 0, ColumnAlignment::kLeft},
    {"Cart", 600, ColumnAlignment::kLeft},
    {"Length", 800, ColumnAlignment::kRight},
    {"", 0, ColumnAlignment::kLeft},
}};

namespace {

float TimeOfText(std::string_view text) {
  if (text.empty()) return 0;
  return static_cast<float>(Val(Mid(text, 1, 2)) * 3600 + Val(Mid(text, 4, 2)) * 60);
}

}  // namespace

LogGrid::LogGrid() { SetRows(1); }

void LogGrid::SetHeadings() {
  for (int32_t column = 0; column < kLogColumns; ++column) {
    rows_[0].cells[static_cast<size_t>(column)] =
        GridCell(texts_.Keep(kLogColumnHeaders[static_cast<size_t>(column)].text));
  }
}

void LogGrid::SetRows(int32_t rows) {
  const int32_t count = std::max(rows, 1);
  rows_.Resize(static_cast<size_t>(count));
  if (count == 1) {
    texts_.Clear();
    SetHeadings();
  }
  times_.SetRows(count);
  for (std::vector<int32_t>& colours : backColours_) {
    colours.resize(std::min(colours.size(), static_cast<size_t>(count)));
  }
  row_ = std::min(row_, count - 1);
  selectionEndRow_ = std::min(selectionEndRow_, count - 1);
  topRow_ = std::min(topRow_, count - 1);
  if (count == 1) missedTime_.reset();
  TellChange();
}

void LogGrid::RefuseRow(int32_t row) const {
  throw RunTimeError(kInvalidGridRow,
                     "row " + std::to_string(row) + " of " + std::to_string(Rows()));
}

void LogGrid::RefuseColumn(int32_t column) {
  throw RunTimeError(kInvalidGridRow, "column " + std::to_string(column));
}

void LogGrid::SetText(int32_t row, int32_t column, std::string_view text) {
  RequireRow(row);
  RequireColumn(column);
  if (column == kTimeColumn) times_.SetTime(row, TimeOfText(text));
  At(row).cells[static_cast<size_t>(column)] = GridCell(texts_.Keep(text));
  TellChange();
}

void LogGrid::SetLength(int32_t row, int32_t column, float seconds, bool hundredths) {
  if (column != kLengthColumn) {
    SetText(row, column, TimeDisplay::OfLength(seconds, LengthMask(hundredths)));
    return;
  }
  RequireRow(row);
  At(row).cells[kLengthColumn] = GridCell::OfLength(seconds, hundredths);
  TellChange();
}

void LogGrid::SetAdvert(int32_t row, const AdvertCells& cells) {
  RequireRow(row);
  GridRow& at = At(row);
  at.cells[kDescriptionColumn] = GridCell(texts_.Keep(cells.description));
  at.cells[kReferenceColumn] = GridCell(texts_.Keep(cells.reference));
  at.cells[kCartColumn] = GridCell::OfNumber(cells.cart);
  at.cells[kLengthColumn] = cells.length ? GridCell::OfLength(*cells.length, cells.hundredths)
                                         : GridCell(texts_.Keep(kNoTimeText));
  at.cells[kPositionColumn] = cells.position <= std::numeric_limits<int32_t>::max()
                                  ? GridCell::OfNumber(static_cast<int32_t>(cells.position))
                                  : GridCell(texts_.Keep(std::to_string(cells.position)));
  SetBackColour(row, kLengthColumn, cells.lengthColour);
  TellChange();
}

int32_t LogGrid::BackColour(int32_t row, int32_t column) const {
  RequireRow(row);
  RequireColumn(column);
  const std::vector<int32_t>& colours = backColours_[static_cast<size_t>(column)];
  return static_cast<size_t>(row) < colours.size() ? colours[static_cast<size_t>(row)]
                                                   : kGridOwnColour;
}

void LogGrid::SetBackColour(int32_t row, int32_t column, int32_t colour) {
  std::vector<int32_t>& colours = backColours_[static_cast<size_t>(column)];
  const auto at = static_cast<size_t>(row);
  if (at >= colours.size()) colours.resize(rows_.size(), kGridOwnColour);
  colours[at] = colour;
}

void LogGrid::SetCellBackColour(int32_t colour) {
  SetBackColour(row_, column_, colour);
  TellChange();
}

void LogGrid::SetRow(int32_t row) {
  RequireRow(row);
  row_ = row;
  selectionEndRow_ = row;
  missedTime_.reset();
  TellSelection();
}

void LogGrid::SetMissedTime(std::optional<float> seconds) {
  if (missedTime_ == seconds) return;
  missedTime_ = seconds;
  TellSelection();
}

void LogGrid::SetColumn(int32_t column) {
  RequireColumn(column);
  column_ = column;
  selectionEndColumn_ = column;
  TellSelection();
}

void LogGrid::SetSelectionEndRow(int32_t row) {
  RequireRow(row);
  selectionEndRow_ = row;
  TellSelection();
}

void LogGrid::SetSelectionEndColumn(int32_t column) {
  RequireColumn(column);
  selectionEndColumn_ = column;
  TellSelection();
}

void LogGrid::SetTopRow(int32_t row) {
  RequireRow(row);
  topRow_ = row;
  TellSelection();
}

void LogGrid::SetRedraw(bool redraw) {
  redraw_ = redraw;
  TellChange();
  TellSelection();
}

bool LogGrid::HasPositionText(int32_t row) const {
  return !Trim(At(row).cells[kPositionColumn].Text(texts_)).empty();
}

int32_t LogGrid::CartOfText(int32_t row) const {
  return ToInt32(Val(At(row).cells[kCartColumn].Text(texts_)));
}

void LogGrid::TellChange() {
  if (redraw_ && observer_ != nullptr) observer_->GridChanged();
}

void LogGrid::TellSelection() {
  if (redraw_ && observer_ != nullptr) observer_->SelectionChanged();
}

}  // namespace logchecker
