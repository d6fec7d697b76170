// gridLog: the cells of a split's log, with a current row, a top row, a selection and cell colours.
// It is the one model of a loaded log; a window shows it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "common/ListView.h"
#include "splitlogs/BreakTimeIndex.h"
#include "splitlogs/GridCell.h"
#include "splitlogs/GridRows.h"
#include "splitlogs/TextPool.h"

namespace logchecker {

enum LogColumn : int32_t {
  kTimeColumn = 0,  // hours and minutes, on the first row of a break
  kDescriptionColumn = 1,
  kReferenceColumn = 2,
  kCartColumn = 3,
  kLengthColumn = 4,
  kPositionColumn = 5,  // not empty on the rows that belong to a break, and on no other
};
inline constexpr int32_t kLogColumns = 6;

// Heading, width in twips as set at load, alignment.
extern const std::array<ColumnHeader, kLogColumns> kLogColumnHeaders;

inline constexpr int32_t kGridOwnColour = -1;
inline constexpr int32_t kRed = 255;  // 0x00BBGGRR
inline constexpr int32_t kWhite = 0xFFFFFF;

// What an advert's row shows, but for the time of a break.
struct AdvertCells {
  int64_t position = 0;  // in the file, from 1
  std::string_view description;
  std::string_view reference;
  int32_t cart = 0;
  std::optional<float> length;  // seconds; "--:--" without
  bool hundredths = false;      // whether the length shows them
  int32_t lengthColour = kGridOwnColour;
};

// Who shows the grid. Told of each change while the grid paints, and once of all when it paints
// again.
class LogGridObserver {
 public:
  virtual ~LogGridObserver() = default;
  virtual void GridChanged() = 0;
  virtual void SelectionChanged() = 0;
};

// Row 0 is the header. A row or column that does not exist stops the program with error 30009.
class LogGrid {
 public:
  LogGrid();

  // Row count, the header included; at least 1. New rows are empty. The current row, the selection
  // and the top row stay inside.
  int32_t Rows() const { return static_cast<int32_t>(rows_.size()); }
  void SetRows(int32_t rows);

  // The view holds until the grid next has one row.
  std::string_view Text(int32_t row, int32_t column) const {
    RequireRow(row);
    RequireColumn(column);
    return At(row).cells[static_cast<size_t>(column)].Text(texts_);
  }
  void SetText(int32_t row, int32_t column, std::string_view text);
  // The same with the text of a length in seconds.
  void SetLength(int32_t row, int32_t column, float seconds, bool hundredths);
  // Does what setting the text of each of the cells by itself would do.
  void SetAdvert(int32_t row, const AdvertCells& cells);
  int32_t BackColour(int32_t row, int32_t column) const;

  // The current cell. Making a row current makes it the whole selection.
  int32_t Row() const { return row_; }
  void SetRow(int32_t row);
  int32_t Column() const { return column_; }
  void SetColumn(int32_t column);
  // Of the current cell.
  void SetCellText(std::string_view text) { SetText(row_, column_, text); }
  void SetCellBackColour(int32_t colour);

  // The selection runs from the current cell to here.
  int32_t SelectionEndRow() const { return selectionEndRow_; }
  int32_t SelectionEndColumn() const { return selectionEndColumn_; }
  void SetSelectionEndRow(int32_t row);
  void SetSelectionEndColumn(int32_t column);

  // The time, in seconds, that was looked for where the selection is another one's, since there is
  // no break at it. Any other row that becomes current ends that.
  std::optional<float> MissedTime() const { return missedTime_; }
  void SetMissedTime(std::optional<float> seconds);

  // The first row below the header that is in view.
  int32_t TopRow() const { return topRow_; }
  void SetTopRow(int32_t row);

  // Holds painting back while false.
  bool Redraw() const { return redraw_; }
  void SetRedraw(bool redraw);
  void SetObserver(LogGridObserver* observer) { observer_ = observer; }

  // Whether the row belongs to a break.
  bool IsAdvertRow(int32_t row) const {
    RequireRow(row);
    const GridCell& position = At(row).cells[kPositionColumn];
    return !position.IsEmpty() && (position.Number() || HasPositionText(row));
  }
  // The number that column 3 of the row gives, 0 for none.
  int32_t RowCart(int32_t row) const {
    RequireRow(row);
    const std::optional<int32_t> cart = At(row).cells[kCartColumn].Number();
    return cart ? *cart : CartOfText(row);
  }
  // The time that column 0 of the row gives, in seconds: whole minutes, 0 for an empty cell.
  float RowTime(int32_t row) const {
    RequireRow(row);
    return times_.Time(row);
  }
  // The first row from 1 on with this very time, or with this or a later one; 0 for none.
  int32_t FirstRowAt(float seconds) const { return times_.FirstAt(seconds); }
  int32_t FirstRowAtOrAfter(float seconds) const { return times_.FirstAtOrAfter(seconds); }

 private:
  struct GridRow {
    mutable std::array<GridCell, kLogColumns> cells;
  };

  GridRow& At(int32_t row) { return rows_[static_cast<size_t>(row)]; }
  const GridRow& At(int32_t row) const { return rows_[static_cast<size_t>(row)]; }
  bool HasPositionText(int32_t row) const;
  int32_t CartOfText(int32_t row) const;
  void SetHeadings();
  void SetBackColour(int32_t row, int32_t column, int32_t colour);
  void RequireRow(int32_t row) const {
    if (row < 0 || row >= Rows()) RefuseRow(row);
  }
  static void RequireColumn(int32_t column) {
    if (column < 0 || column >= kLogColumns) RefuseColumn(column);
  }
  [[noreturn]] void RefuseRow(int32_t row) const;
  [[noreturn]] static void RefuseColumn(int32_t column);
  void TellChange();
  void TellSelection();

  GridRows<GridRow> rows_;
  mutable TextPool texts_;
  BreakTimeIndex times_;
  // By column and row; the rows that are not there yet have none of their own.
  std::array<std::vector<int32_t>, kLogColumns> backColours_;
  int32_t row_ = 0;
  int32_t column_ = 0;
  int32_t selectionEndRow_ = 0;
  int32_t selectionEndColumn_ = 0;
  std::optional<float> missedTime_;
  int32_t topRow_ = 0;
  bool redraw_ = true;
  LogGridObserver* observer_ = nullptr;
};

}  // namespace logchecker
