#include "printing/cPrinting.h"

#include <algorithm>
#include <limits>

#include "common/ErrorState.h"
#include "common/FitTextToWidth.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"

namespace logchecker {

namespace {

constexpr int32_t kPenWidth = 10;
constexpr double kTitleSize = 14;  // points
constexpr double kTextSize = 12;
constexpr int32_t kFootReserve = 600;  // twips

[[noreturn]] void Fail(int32_t number) { throw PrintError(number, ErrorText(number)); }

void RequireColumn(bool exists) {
  if (!exists) Fail(kSubscriptOutOfRange);
}

}  // namespace

int32_t& cPrinting::Entry(ColumnValues& values, int32_t column) {
  RequireColumn(column >= 0 && static_cast<size_t>(column) < values.size());
  return values[static_cast<size_t>(column)];
}

int16_t cPrinting::PrintListView(const ListView* lvwItems, const std::string& Caption,
                                 int16_t SelectedOnly) {
  if (lvwItems == nullptr) return 0;
  list_ = lvwItems;
  lastError_.clear();
  int32_t scaleMode = kScaleTwips;
  bool scaleKnown = false;
  int16_t result = 0;
  try {
    scaleMode = canvas_.ScaleMode();
    scaleKnown = true;
    canvas_.SetScaleMode(kScaleTwips);
    Run(Caption, SelectedOnly);
    list_ = nullptr;
    result = -1;
  } catch (const RunTimeError& error) {
    lastError_ = ErrorText(error.number());
  } catch (const std::exception& error) {
    lastError_ = error.what();
  }
  try {
    if (scaleKnown) canvas_.SetScaleMode(scaleMode);
  } catch (const PrintError&) {
    // Nothing is left to be put back on a canvas that can't even do this.
  }
  return result;
}

void cPrinting::Run(const std::string& Caption, int16_t SelectedOnly) {
  canvas_.SetFontBold(true);
  canvas_.SetPenWidth(kPenWidth);
  const double pixelWidth = canvas_.TwipsPerPixelX();
  const double pixelHeight = canvas_.TwipsPerPixelY();
  leftMargin_ = ToInt32(pixelWidth * 20);
  textLeft_ = ToInt32(pixelHeight * 10 + leftMargin_);
  rightEdge_ = ToInt32(canvas_.PageWidth() - pixelWidth * 20);
  PrintTitle(Caption);
  canvas_.SetCurrentY(static_cast<float>(canvas_.CurrentY() + pixelHeight * 20));
  headingsTop_ = ToInt32(canvas_.CurrentY() + pixelHeight * 20);
  linePosition_ = headingsTop_;
  canvas_.SetFontSize(kTextSize);
  MeasureColumns();
  canvas_.SetCurrentY(static_cast<float>(headingsTop_ + pixelHeight * 10));
  PrintHeadings();
  PrintRows(SelectedOnly);
}

void cPrinting::PrintTitle(const std::string& Caption) {
  canvas_.SetCurrentY(static_cast<float>(canvas_.TwipsPerPixelY() * 10));
  canvas_.SetCurrentX(static_cast<float>(textLeft_));
  canvas_.SetFontSize(kTitleSize);
  canvas_.SetFontUnderline(true);
  canvas_.PrintLine(Caption);
  canvas_.SetFontUnderline(false);
}

void cPrinting::MeasureColumns() {
  columnLeft_.fill(ToInt32(canvas_.CurrentX()));
  columnWidth_.fill(0);
  totalWidth_ = 0;
  for (int32_t column = 1; column <= Columns(); ++column) {
    int32_t& width = Entry(columnWidth_, column);
    width = list_->ColumnHeaders[static_cast<size_t>(column - 1)].width;
    if (hooks.CheckColWidth) hooks.CheckColWidth(*list_, column, width);
    if (width > 0) AddToTotalWidth(width);
  }
  if (totalWidth_ == 0) Fail(kDivisionByZero);
  scaleFactor_ = static_cast<float>(static_cast<double>(rightEdge_ - textLeft_) / totalWidth_);
}

void cPrinting::AddToTotalWidth(int32_t width) {
  const int64_t total = int64_t{totalWidth_} + width + ColumnSpacing;
  if (total > std::numeric_limits<int32_t>::max()) Fail(kOverflow);
  totalWidth_ = static_cast<int32_t>(total);
}

void cPrinting::PrintHeadings() {
  canvas_.SetFontBold(true);
  canvas_.SetCurrentX(static_cast<float>(textLeft_));
  headingsTop_ = ToInt32(canvas_.CurrentY());
  for (int32_t column = 1; column <= Columns(); ++column) {
    totalWidth_ = ToInt32(canvas_.CurrentX());
    const int32_t width = Entry(columnWidth_, column);
    if (width <= 0) continue;
    Entry(columnLeft_, column) = ToInt32(canvas_.CurrentX());
    canvas_.Print(Cut(list_->ColumnHeaders[static_cast<size_t>(column - 1)].text, column));
    currentColumn_ = static_cast<int16_t>(column);
    canvas_.SetCurrentX(static_cast<float>(
        static_cast<double>(scaleFactor_) * (width + ColumnSpacing) + totalWidth_));
  }
  Entry(columnLeft_, Columns() + 1) = ToInt32(canvas_.CurrentX());
  canvas_.PrintLine("");
  linePosition_ = ToInt32(canvas_.CurrentY() + ColumnSpacing);
  // The rule leaves the print position at its end, and the first row follows from there.
  canvas_.DrawLine(static_cast<float>(leftMargin_), static_cast<float>(linePosition_),
                   static_cast<float>(rightEdge_), static_cast<float>(linePosition_));
  canvas_.SetFontBold(false);
}

void cPrinting::PrintRows(int16_t SelectedOnly) {
  int32_t linesPrinted = 0;
  for (int32_t row = 1; row <= Rows(); ++row) {
    if (!WantsRow(row, SelectedOnly, linesPrinted)) continue;
    // All rows of the list count, also when only some print.
    TellProgress(ToInt16(static_cast<double>(linesPrinted) / Rows() * 100), linesPrinted);
    PrintRow(row, linesPrinted);
    // After the last row too, so a page with headings alone can end the report.
    if (canvas_.PageHeight() < canvas_.CurrentY() + kFootReserve) NewPage();
    ++linesPrinted;
  }
  canvas_.EndDoc();
  TellProgress(100, linesPrinted);
}

bool cPrinting::WantsRow(int32_t row, int16_t SelectedOnly, int32_t linesPrinted) const {
  bool PrintIt = list_->ListItems[static_cast<size_t>(row - 1)].Selected || SelectedOnly == 0;
  if (hooks.CheckPrintRow) hooks.CheckPrintRow(*list_, row, PrintIt, linesPrinted);
  return PrintIt;
}

void cPrinting::TellProgress(int16_t percent, int32_t linesPrinted) const {
  if (hooks.PrintProgress) hooks.PrintProgress(*list_, percent, linesPrinted);
}

void cPrinting::PrintRow(int32_t row, int32_t linesPrinted) {
  canvas_.SetCurrentY(canvas_.CurrentY() + static_cast<float>(ColumnSpacing));
  canvas_.SetCurrentX(static_cast<float>(textLeft_));
  for (int32_t column = 1; column <= Columns(); ++column) {
    canvas_.SetCurrentX(static_cast<float>(Entry(columnLeft_, column)));
    if (Entry(columnWidth_, column) > 0) PrintCell(row, column, linesPrinted);
  }
  canvas_.PrintLine("");
}

void cPrinting::PrintCell(int32_t row, int32_t column, int32_t linesPrinted) {
  const ListItem& item = list_->ListItems[static_cast<size_t>(row - 1)];
  const auto subItem = static_cast<size_t>(column) - 2;
  std::string text = item.text;
  bool bold = item.Bold;
  if (column > 1) {
    const bool exists = subItem < item.ListSubItems.size();
    text = exists ? item.ListSubItems[subItem].text : "";
    bold = exists && item.ListSubItems[subItem].Bold;
  }
  if (hooks.CheckPrintCell) hooks.CheckPrintCell(*list_, row, column, text, linesPrinted);
  // A blank cell leaves the bold state as it was.
  if (Trim(text).empty()) return;
  canvas_.SetFontBold(bold);
  std::replace(text.begin(), text.end(), '\r', ' ');
  std::replace(text.begin(), text.end(), '\n', ' ');
  canvas_.Print(Cut(text, column));
}

std::string cPrinting::Cut(const std::string& text, int32_t column) {
  const int32_t most = ToInt32(static_cast<double>(scaleFactor_) * Entry(columnWidth_, column));
  return FitTextToWidth([this](std::string_view head) { return canvas_.TextWidth(head); }, text,
                        most);
}

void cPrinting::NewPage() {
  canvas_.NewPage();
  if (list_ != nullptr) PrintHeadings();
}

}  // namespace logchecker
