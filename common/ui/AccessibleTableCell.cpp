#include "common/ui/AccessibleTableCell.h"

#include <QAccessible>
#include <QHeaderView>
#include <QPointer>

#include "common/ui/AccessibleTable.h"
#include "common/ui/Guard.h"

namespace logchecker {

namespace {

// What cells and headings share: a part of a view that is no object of its own.
class PartOfView : public QAccessibleInterface {
 public:
  explicit PartOfView(QAbstractItemView& view) : view_(&view) {}

  bool isValid() const override { return view_ != nullptr && view_->model() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return isValid() ? view_->window()->windowHandle() : nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(view_);
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  void setText(QAccessible::Text /*what*/, const QString& /*text*/) override {}

  QAccessible::State state() const override {
    QAccessible::State state;
    if (!isValid()) return state;
    state.disabled = !view_->isEnabled();
    const QWidget& shownIn = ShownIn();
    const QRect frame(shownIn.mapToGlobal(QPoint()), shownIn.size());
    state.invisible = !view_->isVisible();
    state.offscreen = !frame.intersects(rect());
    return state;
  }

 protected:
  // What the part is cut off by.
  virtual const QWidget& ShownIn() const { return *view_->viewport(); }

  QPointer<QAbstractItemView> view_;
};

class AccessibleCell : public PartOfView,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
 public:
  AccessibleCell(QAbstractItemView& view, int row, int column, int shownColumn)
      : PartOfView(view), row_(row), column_(column), shownColumn_(shownColumn) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableCellInterface) {
      return static_cast<QAccessibleTableCellInterface*>(this);
    }
    if (type == QAccessible::ActionInterface) {
      return static_cast<QAccessibleActionInterface*>(this);
    }
    return nullptr;
  }

  bool isValid() const override {
    return PartOfView::isValid() && row_ < view_->model()->rowCount();
  }
  QAccessible::Role role() const override { return QAccessible::Cell; }

  QAccessible::State state() const override {
    QAccessible::State state = PartOfView::state();
    if (!isValid()) return state;
    state.selectable = true;
    state.focusable = true;
    state.extSelectable = view_->selectionMode() == QAbstractItemView::ExtendedSelection;
    state.selected = isSelected();
    state.focused =
        view_->hasFocus() && view_->currentIndex().row() == row_ && parent()->focusChild() == this;
    return state;
  }

  QRect rect() const override {
    if (!isValid()) return {};
    const QRect inViewport = view_->visualRect(Index());
    return {view_->viewport()->mapToGlobal(inViewport.topLeft()), inViewport.size()};
  }

  // Texts of a fixed width are told without the blanks that fill them up.
  QString text(QAccessible::Text what) const override {
    if (!isValid()) return {};
    if (what == QAccessible::Description) return Index().data(Role(what)).toString();
    if (what != QAccessible::Name) return {};
    const QString said = Index().data(Role(what)).toString().trimmed();
    return said.isEmpty() ? Index().data(Qt::DisplayRole).toString().trimmed() : said;
  }

  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  int columnIndex() const override { return shownColumn_; }
  int rowIndex() const override { return row_; }
  QList<QAccessibleInterface*> columnHeaderCells() const override {
    return {parent()->child(shownColumn_)};
  }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  bool isSelected() const override {
    return isValid() && view_->selectionModel()->isRowSelected(row_, {});
  }
  QAccessibleInterface* table() const override { return parent(); }

  QStringList actionNames() const override {
    return {pressAction(), setFocusAction(), toggleAction()};
  }
  QStringList keyBindingsForAction(const QString& action) const override {
    return action == pressAction() ? QStringList("Enter") : QStringList();
  }
  QString localizedActionDescription(const QString& action) const override {
    if (action == pressAction()) return "Chooses the row";
    if (action == setFocusAction()) return "Makes the row the current one";
    return "Selects the row, or no longer";
  }
  void doAction(const QString& action) override {
    if (!isValid()) return;
    auto& chooser = dynamic_cast<RowChooser&>(*view_);
    Guarded([&] {
      if (action == pressAction()) chooser.ChooseRow(row_);
      if (action == setFocusAction()) {
        view_->setFocus();
        chooser.MakeRowCurrent(row_);
      }
      if (action == toggleAction()) Toggle();
    });
  }

 private:
  QModelIndex Index() const { return view_->model()->index(row_, column_); }
  static int Role(QAccessible::Text what) {
    return what == QAccessible::Name ? Qt::AccessibleTextRole : Qt::AccessibleDescriptionRole;
  }

  void Toggle() {
    QAccessibleTableInterface& table = *parent()->tableInterface();
    if (isSelected()) {
      table.unselectRow(row_);
    } else {
      table.selectRow(row_);
    }
  }

  int row_;
  int column_;
  int shownColumn_;
};

class AccessibleHeading : public PartOfView, public QAccessibleActionInterface {
 public:
  AccessibleHeading(QAbstractItemView& view, QHeaderView& header, int column)
      : PartOfView(view), header_(&header), column_(column) {}

  bool isValid() const override {
    return PartOfView::isValid() && header_ != nullptr && column_ < header_->count();
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    const bool acts = type == QAccessible::ActionInterface && isValid();
    if (!acts || !header_->sectionsClickable()) return nullptr;
    return static_cast<QAccessibleActionInterface*>(this);
  }
  QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
  QRect rect() const override {
    if (!isValid()) return {};
    const QPoint place(header_->sectionViewportPosition(column_), 0);
    return {header_->viewport()->mapToGlobal(place),
            QSize(header_->sectionSize(column_), header_->height())};
  }
  QString text(QAccessible::Text what) const override {
    if (!isValid() || what != QAccessible::Name) return {};
    return view_->model()->headerData(column_, Qt::Horizontal).toString();
  }

  QStringList actionNames() const override { return {pressAction()}; }
  QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }
  void doAction(const QString& action) override {
    if (isValid() && action == pressAction()) emit header_->sectionClicked(column_);
  }

 private:
  const QWidget& ShownIn() const override { return *header_->viewport(); }

  QPointer<QHeaderView> header_;
  int column_;
};

}  // namespace

QAccessibleInterface* MakeAccessibleCell(QAbstractItemView& view, int row, int column,
                                         int shownColumn) {
  return new AccessibleCell(view, row, column, shownColumn);
}

QAccessibleInterface* MakeAccessibleHeading(QAbstractItemView& view, QHeaderView& header,
                                            int column) {
  return new AccessibleHeading(view, header, column);
}

}  // namespace logchecker
