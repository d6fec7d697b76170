#include "common/ui/AccessibleTable.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QHash>
#include <QHeaderView>
#include <QTableView>
#include <QTreeView>
#include <utility>

#include "common/ui/AccessibleTableCell.h"

namespace logchecker {

namespace {

QHeaderView* HeaderOf(const QAbstractItemView& view) {
  if (const auto* table = qobject_cast<const QTableView*>(&view)) return table->horizontalHeader();
  const auto* tree = qobject_cast<const QTreeView*>(&view);
  return tree != nullptr ? tree->header() : nullptr;
}

// Row -1 is the headings. Columns count those on show alone.
class AccessibleTable : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit AccessibleTable(QAbstractItemView* view)
      : QAccessibleWidget(view, QAccessible::Table), view_(*view) {}
  ~AccessibleTable() override {
    for (const QAccessible::Id id : std::as_const(cells_)) {
      QAccessible::deleteAccessibleInterface(id);
    }
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  int childCount() const override { return (rowCount() + 1) * columnCount(); }

  QAccessibleInterface* child(int index) const override {
    const int columns = columnCount();
    if (index < 0 || index >= childCount()) return nullptr;
    return At(index / columns - 1, index % columns);
  }

  int indexOfChild(const QAccessibleInterface* child) const override {
    if (child == nullptr || child->parent() != this) return -1;
    auto* part = const_cast<QAccessibleInterface*>(child);
    if (const QAccessibleTableCellInterface* cell = part->tableCellInterface()) {
      return (cell->rowIndex() + 1) * columnCount() + cell->columnIndex();
    }
    for (int column = 0; column < columnCount(); ++column) {
      if (At(-1, column) == child) return column;
    }
    return -1;
  }

  QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint place = view_.viewport()->mapFromGlobal(QPoint(x, y));
    const QModelIndex index = view_.indexAt(place);
    if (index.isValid()) return CellOf(index);
    const QHeaderView* header = HeaderOf(view_);
    const int section = header->logicalIndexAt(header->mapFromGlobal(QPoint(x, y)));
    return header->rect().contains(header->mapFromGlobal(QPoint(x, y))) && section >= 0
               ? At(-1, static_cast<int>(Columns().indexOf(section)))
               : nullptr;
  }

  QAccessibleInterface* focusChild() const override {
    return view_.hasFocus() && view_.currentIndex().isValid() ? CellOf(view_.currentIndex())
                                                              : nullptr;
  }

  // The cell of an index, or of its row's first column on show where its own is hidden.
  QAccessibleInterface* CellOf(const QModelIndex& index) const {
    return At(index.row(), qMax(static_cast<int>(Columns().indexOf(index.column())), 0));
  }

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int row, int column) const override {
    return row < 0 ? nullptr : At(row, column);
  }
  int rowCount() const override { return view_.model() != nullptr ? view_.model()->rowCount() : 0; }
  int columnCount() const override { return static_cast<int>(Columns().size()); }

  QString columnDescription(int column) const override {
    const QList<int> columns = Columns();
    if (column < 0 || column >= columns.size()) return {};
    return view_.model()->headerData(columns[column], Qt::Horizontal).toString();
  }
  QString rowDescription(int /*row*/) const override { return {}; }

  int selectedCellCount() const override { return selectedRowCount() * columnCount(); }
  QList<QAccessibleInterface*> selectedCells() const override {
    QList<QAccessibleInterface*> cells;
    for (const int row : selectedRows()) {
      for (int column = 0; column < columnCount(); ++column) cells.push_back(At(row, column));
    }
    return cells;
  }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override {
    QList<int> rows;
    for (const QModelIndex& index : view_.selectionModel()->selectedRows()) rows << index.row();
    return rows;
  }
  bool isColumnSelected(int /*column*/) const override { return false; }
  bool isRowSelected(int row) const override {
    return view_.selectionModel()->isRowSelected(row, {});
  }
  bool selectRow(int row) override { return Select(row, QItemSelectionModel::Select); }
  bool unselectRow(int row) override { return Select(row, QItemSelectionModel::Deselect); }
  bool selectColumn(int /*column*/) override { return false; }
  bool unselectColumn(int /*column*/) override { return false; }

  // A cell is of a place, whose row another one may have taken. Headings stay.
  void modelChange(QAccessibleTableModelChangeEvent* /*event*/) override {
    for (auto cell = cells_.begin(); cell != cells_.end();) {
      if (cell.key().first < 0) {
        ++cell;
        continue;
      }
      QAccessible::deleteAccessibleInterface(cell.value());
      cell = cells_.erase(cell);
    }
  }

 private:
  using Place = std::pair<int, int>;  // the row and the model's column

  QList<int> Columns() const {
    QList<int> columns;
    const QHeaderView* header = HeaderOf(view_);
    for (int place = 0; place < header->count(); ++place) {
      const int column = header->logicalIndex(place);
      if (!header->isSectionHidden(column)) columns << column;
    }
    return columns;
  }

  QAccessibleInterface* At(int row, int column) const {
    const QList<int> columns = Columns();
    if (row >= rowCount() || column < 0 || column >= columns.size()) return nullptr;
    QAccessible::Id& id = cells_[Place(row, columns[column])];
    if (id == 0) {
      QAccessibleInterface* made =
          row < 0 ? MakeAccessibleHeading(view_, *HeaderOf(view_), columns[column])
                  : MakeAccessibleCell(view_, row, columns[column], column);
      id = QAccessible::registerAccessibleInterface(made);
    }
    return QAccessible::accessibleInterface(id);
  }

  // Where one row alone can be selected, another is let go.
  bool Select(int row, QItemSelectionModel::SelectionFlag how) {
    if (row < 0 || row >= rowCount()) return false;
    const bool one = view_.selectionMode() == QAbstractItemView::SingleSelection;
    if (one && how == QItemSelectionModel::Select) {
      dynamic_cast<RowChooser&>(view_).MakeRowCurrent(row);
    } else {
      view_.selectionModel()->select(view_.model()->index(row, 0), how | QItemSelectionModel::Rows);
    }
    return isRowSelected(row) == (how == QItemSelectionModel::Select);
  }

  QAbstractItemView& view_;
  mutable QHash<Place, QAccessible::Id> cells_;
};

QAccessibleInterface* MakeTable(const QString& className, QObject* object) {
  auto* view = qobject_cast<QAbstractItemView*>(object);
  if (view == nullptr || className != object->metaObject()->className()) return nullptr;
  if (dynamic_cast<RowChooser*>(view) == nullptr || HeaderOf(*view) == nullptr) return nullptr;
  return new AccessibleTable(view);
}

// Null while nobody listens.
QAccessibleInterface* CellToTellOf(const QAbstractItemView& view, const QModelIndex& index) {
  if (!QAccessible::isActive() || !index.isValid()) return nullptr;
  const auto* table = dynamic_cast<AccessibleTable*>(
      QAccessible::queryAccessibleInterface(const_cast<QAbstractItemView*>(&view)));
  return table != nullptr ? table->CellOf(index) : nullptr;
}

void Tell(QAccessibleInterface* cell, QAccessible::Event what) {
  if (cell == nullptr) return;
  QAccessibleEvent event(cell, what);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

void UseAccessibleTables() {
  static const bool used = [] {
    QAccessible::installFactory(MakeTable);
    // Who comes into a table is on its current row. Behind the word that the table has the focus.
    QObject::connect(qApp, &QApplication::focusChanged, qApp, [](QWidget*, QWidget* now) {
      auto* view = qobject_cast<QAbstractItemView*>(now);
      if (dynamic_cast<RowChooser*>(view) == nullptr) return;
      QMetaObject::invokeMethod(
          view, [view] { TellCurrentChanged(*view, view->currentIndex()); }, Qt::QueuedConnection);
    });
    return true;
  }();
  Q_UNUSED(used);
}

// A tree paints the frame of the focus around all of a row.
void TellCurrentChanged(QAbstractItemView& view, const QModelIndex& current) {
  view.viewport()->update();
  if (view.hasFocus()) Tell(CellToTellOf(view, current), QAccessible::Focus);
}

void TellSelectionChanged(QAbstractItemView& view, const QItemSelection& selected,
                          const QItemSelection& deselected) {
  const auto tell = [&](const QItemSelection& ranges, QAccessible::Event what) {
    if (!ranges.isEmpty()) Tell(CellToTellOf(view, ranges.first().topLeft()), what);
  };
  tell(deselected, QAccessible::SelectionRemove);
  tell(selected, QAccessible::SelectionAdd);
}

}  // namespace logchecker
