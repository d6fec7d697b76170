#include "cartbrowser/ui/AccessibleCartRows.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "cartbrowser/ui/CartRowWidgets.h"
#include "cartbrowser/ui/CartRowsPanel.h"

namespace logchecker {

namespace {

class AccessibleCartList : public QAccessibleWidget {
 public:
  explicit AccessibleCartList(CartRowsPanel* list)
      : QAccessibleWidget(list, QAccessible::List), list_(*list) {}

  int childCount() const override { return list_.RowsInUse(); }
  QAccessibleInterface* child(int index) const override {
    QWidget* row = list_.RowAt(index);
    return row != nullptr ? QAccessible::queryAccessibleInterface(row) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return child != nullptr ? list_.IndexOf(qobject_cast<QWidget*>(child->object())) : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    for (int index = 0; index < childCount(); ++index) {
      QAccessibleInterface* row = child(index);
      if (row != nullptr && row->rect().contains(x, y)) return row;
    }
    return nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    for (int index = 0; index < childCount(); ++index) {
      if (child(index)->state().focused) return child(index);
    }
    return nullptr;
  }

 private:
  CartRowsPanel& list_;
};

// The button with the number and the panel beside it are one.
class AccessibleCartRow : public QAccessibleWidget {
 public:
  AccessibleCartRow(CartPanel* row, CartRowsPanel* list)
      : QAccessibleWidget(row, QAccessible::ListItem), row_(*row), list_(*list) {}

  int childCount() const override { return 0; }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const bool current = list_.IsCurrent(&row_);
    state.selectable = true;
    state.focusable = true;
    state.selected = current;
    state.active = current;
    state.focused = current && list_.IsTold() && list_.isActiveWindow();
    // A row that is cut off whole by the frame can't be seen, nor can one that is in no use.
    state.offscreen = row_.visibleRegion().isEmpty() || list_.IndexOf(&row_) < 0;
    return state;
  }

  QRect rect() const override {
    const QRect panel = QAccessibleWidget::rect();
    const int left = list_.mapToGlobal(list_.contentsRect().topLeft()).x();
    return {QPoint(left, panel.top()), panel.bottomRight()};
  }

  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }
  QString localizedActionDescription(const QString& action) const override {
    return action == pressAction() ? "Takes the cart" : "Makes the cart the current one";
  }
  // Windows selects an item by toggling it.
  void doAction(const QString& action) override {
    const bool selects = action == toggleAction() && !list_.IsCurrent(&row_);
    if (action == setFocusAction() || selects) list_.MakeCurrent(&row_);
    if (action == pressAction()) list_.Take(&row_);
  }

 private:
  CartPanel& row_;
  CartRowsPanel& list_;
};

QAccessibleInterface* MakeCartRows(const QString& className, QObject* object) {
  if (className != object->metaObject()->className()) return nullptr;
  if (auto* list = qobject_cast<CartRowsPanel*>(object)) return new AccessibleCartList(list);
  auto* row = qobject_cast<CartPanel*>(object);
  auto* list = row != nullptr ? qobject_cast<CartRowsPanel*>(row->parentWidget()) : nullptr;
  return list != nullptr ? new AccessibleCartRow(row, list) : nullptr;
}

}  // namespace

void UseAccessibleCartRows() {
  static const bool used = [] {
    QAccessible::installFactory(MakeCartRows);
    return true;
  }();
  Q_UNUSED(used);
}

void TellCartRow(QWidget* row, QWidget* before) {
  if (before != nullptr && before != row) {
    QAccessibleEvent left(before, QAccessible::SelectionRemove);
    QAccessible::updateAccessibility(&left);
  }
  if (row == nullptr) return;
  QAccessibleEvent selected(row, QAccessible::Selection);
  QAccessible::updateAccessibility(&selected);
  TellFocus(*row);
}

void TellFocus(QWidget& control) {
  QAccessibleEvent focus(&control, QAccessible::Focus);
  QAccessible::updateAccessibility(&focus);
}

}  // namespace logchecker
