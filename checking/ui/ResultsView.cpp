#include "checking/ui/ResultsView.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <algorithm>
#include <numeric>
#include <set>
#include <string>

#include "common/Numbers.h"
#include "common/ui/CellDelegate.h"
#include "common/ui/CompactFont.h"
#include "common/ui/CompactHeader.h"
#include "common/ui/ReportList.h"
#include "common/ui/StationQString.h"
#include "common/ui/TextSizeWatch.h"
#include "common/ui/Twips.h"

namespace logchecker {

namespace {

// What the frame and the scroll bar take of the list's width, in twips.
constexpr int kFrameWidth = 90;
constexpr int kScrollBarWidth = 255;

// In percent of the plain face's width.
constexpr int kStretches[] = {QFont::Unstretched, QFont::SemiCondensed, QFont::Condensed};

constexpr char kWidestText[] = "Not Found";
constexpr int kWidestHeading = 2;  // times that text

}  // namespace

ResultsView::ResultsView(ListView& list, QWidget* parent)
    : QTreeView(parent), list_(list), model_(new ListViewModel(list, this)) {
  UseAccessibleTables();
  SetUpReportList(*this);
  setModel(model_);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  headings_ = qobject_cast<CompactHeader*>(header());
  headings_->SetTwoLines(true);
  WhenTextSizeChanges(*this, [this] { TakeTextSize(); });
  connect(header(), &QHeaderView::sectionResized, this, [this](int column, int /*old*/, int width) {
    if (sharing_) return;
    list_.ColumnHeaders[static_cast<size_t>(column)].width = GivenTwips(ToTwips(width));
    dragged_ = true;
  });
}

void ResultsView::Refresh() {
  model_->Refresh();
  faces_.clear();
}

void ResultsView::TakeAddedRows() {
  model_->TakeAddedRows();
  viewport()->repaint();
}

std::string ResultsView::KeyOfSelectedRow() const {
  const QModelIndexList selected = selectionModel()->selectedRows();
  if (selected.isEmpty()) return "";
  // A view that gets the focus can have a current row that nobody selected.
  const int current = currentIndex().row();
  const bool isSelected = selectionModel()->isRowSelected(current, {});
  const auto row = static_cast<size_t>(isSelected ? current : selected.constFirst().row());
  return row < list_.ListItems.size() ? list_.ListItems[row].key : "";
}

void ResultsView::SelectRow(size_t row) {
  const QModelIndex index = model_->index(static_cast<int>(row), 0);
  selectionModel()->setCurrentIndex(
      index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  scrollTo(index);
}

void ResultsView::ShareColumns(bool keepFirst) {
  if (model_->columnCount() < 1) return;
  dragged_ = false;
  if (!keepFirst) {
    const QScopedValueRollback<bool> sharing(sharing_, true);
    setColumnWidth(0, ToPixels(TableTwips(list_.ColumnHeaders.front().width)));
  }
  if (faces_.empty()) MeasureTexts();
  GiveWidths();
}

// A width that the user gave a column was for texts of another size.
void ResultsView::TakeTextSize() {
  faces_.clear();
  ShareColumns(false);
}

void ResultsView::FitColumns() {
  MeasureTexts();
  if (!dragged_) GiveWidths();
}

void ResultsView::MeasureTexts() {
  faces_.clear();
  for (const int stretch : kStretches) {
    QFont font = CompactFont();
    if (stretch != QFont::Unstretched) font.setStretch(stretch);
    faces_.push_back({font, WidthsIn(font, true)});
  }
  // Where there has to be a scroll bar, the plain face is the one that reads best.
  scrolled_ = {CompactFont(), WidthsIn(CompactFont(), false)};
}

// A heading counts up to a multiple of the widest text that any cell may need; a longer one ends in
// dots and is told by its tool tip.
std::vector<int> ResultsView::WidthsIn(const QFont& font, bool twoLines) const {
  const QFontMetrics metrics(font);
  const int margins = 2 * CellMargin(metrics);
  const int widestHeading = kWidestHeading * metrics.horizontalAdvance(kWidestText);
  std::vector<int> widths;
  for (size_t column = 1; column < list_.ColumnHeaders.size(); ++column) {
    std::set<std::string> texts;
    for (const ListItem& row : list_.ListItems) {
      if (column <= row.ListSubItems.size()) texts.insert(row.ListSubItems[column - 1].text);
    }
    const QString heading = ToQString(list_.ColumnHeaders[column].text);
    const int headingWidth = twoLines ? headings_->WidthFor(heading, metrics)
                                      : metrics.horizontalAdvance(heading) + margins;
    int width = std::min(headingWidth, widestHeading);
    for (const std::string& text : texts) {
      const int needed = metrics.horizontalAdvance(ToQString(text).trimmed());
      width = std::max(width, needed + margins);
    }
    widths.push_back(width);
  }
  return widths;
}

void ResultsView::UseFace(const QFont& font) {
  if (this->font() == font) return;
  setFont(font);
  header()->setFont(font);
}

int32_t ResultsView::EvenShare() const {
  const int first = TableTwips(list_.ColumnHeaders.front().width);
  const int left = ToTwips(width()) - kFrameWidth - kScrollBarWidth - first;
  return ToInt32(static_cast<double>(left) / (model_->columnCount() - 1));
}

const ResultsView::Face* ResultsView::FirstFace(
    const std::function<bool(const Face&)>& fits) const {
  const auto found = std::find_if(faces_.begin(), faces_.end(), fits);
  return found == faces_.end() ? nullptr : &*found;
}

void ResultsView::GiveWidths() {
  if (model_->columnCount() < 2) return;
  const QScopedValueRollback<bool> sharing(sharing_, true);
  const int32_t share = EvenShare();
  const int pixels = std::max(share / kTwipsPerPixel, 1);
  const int room = pixels * (model_->columnCount() - 1);
  if (const Face* even = FirstFace([&](const Face& face) { return face.Widest() <= pixels; })) {
    GiveEvenShares(*even, share);
  } else if (const Face* own = FirstFace([&](const Face& face) { return face.Sum() <= room; })) {
    GiveNeededWidths(*own, room);
  } else {
    GiveNeededWidths(scrolled_, 0);
  }
  updateGeometries();
}

void ResultsView::GiveEvenShares(const Face& face, int32_t share) {
  UseFace(face.font);
  for (int column = 1; column < model_->columnCount(); ++column) {
    list_.ColumnHeaders[static_cast<size_t>(column)].width = GivenTwips(share);
    setColumnWidth(column, std::max(share / kTwipsPerPixel, 1));
  }
}

// What `room` leaves is shared among the columns.
void ResultsView::GiveNeededWidths(const Face& face, int room) {
  UseFace(face.font);
  const int columns = model_->columnCount() - 1;
  const int spare = std::max(room - face.Sum(), 0) / columns;
  for (int column = 1; column <= columns; ++column) {
    const int width = face.widths[static_cast<size_t>(column - 1)] + spare;
    list_.ColumnHeaders[static_cast<size_t>(column)].width = GivenTwips(ToTwips(width));
    setColumnWidth(column, width);
  }
}

int ResultsView::Face::Widest() const { return *std::max_element(widths.begin(), widths.end()); }

int ResultsView::Face::Sum() const { return std::accumulate(widths.begin(), widths.end(), 0); }

void ResultsView::mouseReleaseEvent(QMouseEvent* event) {
  QTreeView::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton) emit rowChosen();
}

void ResultsView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    emit rowChosen();
    return;
  }
  // The toolkit makes the first row the current one, unselected, when the list gets the focus; the
  // first arrow selects that row and does not go past it.
  const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  if (arrow && event->modifiers() == Qt::NoModifier && currentIndex().row() == 0 &&
      !selectionModel()->hasSelection()) {
    selectionModel()->clearCurrentIndex();
  }
  QTreeView::keyPressEvent(event);
}

void ResultsView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QAbstractItemView::currentChanged(current, previous);  // NOLINT(bugprone-parent-virtual-call)
  TellCurrentChanged(*this, current);
}

void ResultsView::MakeRowCurrent(int row) { setCurrentIndex(model_->index(row, 0)); }

void ResultsView::ChooseRow(int row) {
  MakeRowCurrent(row);
  emit rowChosen();
}

void ResultsView::selectionChanged(const QItemSelection& selected,
                                   const QItemSelection& deselected) {
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): the base's own counts headings in its own way
  QAbstractItemView::selectionChanged(selected, deselected);
  TellSelectionChanged(*this, selected, deselected);
  const auto mark = [this](const QItemSelection& ranges, bool on) {
    for (const QItemSelectionRange& range : ranges) {
      for (int row = range.top(); row <= range.bottom(); ++row) {
        const auto index = static_cast<size_t>(row);
        if (index < list_.ListItems.size()) list_.ListItems[index].Selected = on;
      }
    }
  };
  mark(deselected, false);
  mark(selected, true);
}

}  // namespace logchecker
