// A report-style list as a report on paper: a title, bold column headings with a rule under them,
// and the rows, with the list's column widths scaled to fill the page.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "common/ListView.h"
#include "printing/PrintCanvas.h"

namespace logchecker {

// Columns and rows count from 1. A list of more than 99 columns fails as any error does.
class cPrinting {
 public:
  // Hooks of the owner, called on the way; an empty one has no listener. References may be changed.
  struct Hooks {
    // Once a column, before any width is summed; twips, 0 drops the column.
    std::function<void(const ListView& lvw, int32_t ColNumber, int32_t& ColWidth)> CheckColWidth;
    // Before each row that prints, and at the end with 100.
    std::function<void(const ListView& lvw, int16_t ProgressPercent, int32_t LinesPrinted)>
        PrintProgress;
    // Before each row, printed or not.
    std::function<void(const ListView& lvw, int32_t RowNumber, bool& PrintIt, int32_t LinesPrinted)>
        CheckPrintRow;
    // Before each cell of a row that prints.
    std::function<void(const ListView& lvw, int32_t RowNumber, int32_t ColNumber,
                       std::string& strPrint, int32_t LinesPrinted)>
        CheckPrintCell;
  };

  // `canvas` must outlive the object.
  explicit cPrinting(PrintCanvas& canvas) : canvas_(canvas) {}

  // The description of the last failure; empty after success.
  const std::string& GetLastError() const { return lastError_; }

  // Prints the list, or with `SelectedOnly` other than 0 its selected rows, as one job. True (-1)
  // when it was printed. 0 on any failure: the job is not closed then, the list stays remembered,
  // and the last error says why. The canvas's scale mode is put back in every outcome.
  int16_t PrintListView(const ListView* lvwItems, const std::string& Caption, int16_t SelectedOnly);

  // Starts a new page, with the headings of the current list at its top and no title.
  void NewPage();

  // Whether a list is remembered.
  bool HasList() const { return list_ != nullptr; }

  Hooks hooks;
  int32_t ColumnSpacing = 60;  // twips, added to each column's width and between rows

 private:
  static constexpr size_t kColumnEntries = 101;
  using ColumnValues = std::array<int32_t, kColumnEntries>;

  void Run(const std::string& Caption, int16_t SelectedOnly);
  void PrintTitle(const std::string& Caption);
  void MeasureColumns();
  void AddToTotalWidth(int32_t width);
  void PrintHeadings();
  void PrintRows(int16_t SelectedOnly);
  void PrintRow(int32_t row, int32_t linesPrinted);
  void PrintCell(int32_t row, int32_t column, int32_t linesPrinted);
  bool WantsRow(int32_t row, int16_t SelectedOnly, int32_t linesPrinted) const;
  void TellProgress(int16_t percent, int32_t linesPrinted) const;
  std::string Cut(const std::string& text, int32_t column);
  static int32_t& Entry(ColumnValues& values, int32_t column);
  int32_t Columns() const { return static_cast<int32_t>(list_->ColumnHeaders.size()); }
  int32_t Rows() const { return static_cast<int32_t>(list_->ListItems.size()); }

  PrintCanvas& canvas_;
  const ListView* list_ = nullptr;
  std::string lastError_;
  float scaleFactor_ = 0;
  ColumnValues columnLeft_{};   // twips on the page
  ColumnValues columnWidth_{};  // twips in the list; 0 is not printed
  int16_t currentColumn_ = 0;   // the last one whose heading was printed
  int32_t totalWidth_ = 0;      // and, while headings print, the running X
  int32_t linePosition_ = 0;    // Y of the rule under the headings
  int32_t headingsTop_ = 0;
  int32_t leftMargin_ = 0;
  int32_t rightEdge_ = 0;
  int32_t textLeft_ = 0;
};

}  // namespace logchecker
