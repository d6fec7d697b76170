#include "splitlogs/LogGrid.h"

#include <algorithm>
#include <string>

#include "common/ErrorState.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"

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
    rows_[0].texts[static_cast<size_t>(column)] =
        kLogColumnHeaders[static_cast<size_t>(column)].text;
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
  row_ = std::min(row_, count - 1);
  selectionEndRow_ = std::min(selectionEndRow_, count - 1);
  topRow_ = std::min(topRow_, count - 1);
  if (count == 1) missedTime_.reset();
  TellChange();
}

void LogGrid::RequireRow(int32_t row) const {
  if (row < 0 || row >= Rows()) {
    throw RunTimeError(kInvalidGridRow,
                       "row " + std::to_string(row) + " of " + std::to_string(Rows()));
  }
}

void LogGrid::RequireColumn(int32_t column) {
  if (column < 0 || column >= kLogColumns) {
    throw RunTimeError(kInvalidGridRow, "column " + std::to_string(column));
  }
}

std::string_view LogGrid::Text(int32_t row, int32_t column) const {
  RequireRow(row);
  RequireColumn(column);
  return rows_[static_cast<size_t>(row)].texts[static_cast<size_t>(column)];
}

void LogGrid::SetText(int32_t row, int32_t column, std::string_view text) {
  RequireRow(row);
  RequireColumn(column);
  if (column == kTimeColumn) times_.SetTime(row, TimeOfText(text));
  rows_[static_cast<size_t>(row)].texts[static_cast<size_t>(column)] = texts_.Keep(text);
  TellChange();
}

int32_t LogGrid::BackColour(int32_t row, int32_t column) const {
  RequireRow(row);
  RequireColumn(column);
  return rows_[static_cast<size_t>(row)].backColours[static_cast<size_t>(column)];
}

void LogGrid::SetCellBackColour(int32_t colour) {
  rows_[static_cast<size_t>(row_)].backColours[static_cast<size_t>(column_)] = colour;
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

bool LogGrid::IsAdvertRow(int32_t row) const { return !Trim(Text(row, kPositionColumn)).empty(); }

float LogGrid::RowTime(int32_t row) const {
  RequireRow(row);
  return times_.Time(row);
}

void LogGrid::TellChange() {
  if (redraw_ && observer_ != nullptr) observer_->GridChanged();
}

void LogGrid::TellSelection() {
  if (redraw_ && observer_ != nullptr) observer_->SelectionChanged();
}

}  // namespace logchecker
