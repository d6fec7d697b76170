#include "common/ui/Buttons.h"

#include <QApplication>
#include <QKeyEvent>
#include <QShortcutEvent>
#include <QToolButton>

namespace logchecker {

namespace {

bool IsReturn(const QKeyEvent& key) {
  const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return plain && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
}

bool PressOnReturn(QToolButton& button, const QKeyEvent& key) {
  if (!IsReturn(key)) return false;
  if (!key.isAutoRepeat() || button.autoRepeat()) button.click();
  return true;
}

// The toolkit shows the box pressed for a moment first.
bool TurnAtOnce(QAbstractButton& box, const QShortcutEvent& key) {
  if (!box.isCheckable() || key.isAmbiguous()) return false;
  if ((box.focusPolicy() & Qt::ClickFocus) != 0) box.setFocus(Qt::ShortcutFocusReason);
  box.click();
  return true;
}

class Rules : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      auto* button = qobject_cast<QToolButton*>(watched);
      return button != nullptr && PressOnReturn(*button, static_cast<const QKeyEvent&>(*event));
    }
    if (event->type() == QEvent::Shortcut) {
      auto* box = qobject_cast<QAbstractButton*>(watched);
      return box != nullptr && TurnAtOnce(*box, static_cast<const QShortcutEvent&>(*event));
    }
    return false;
  }
};

}  // namespace

void HoldButtonRules() { qApp->installEventFilter(new Rules(qApp)); }

}  // namespace logchecker
