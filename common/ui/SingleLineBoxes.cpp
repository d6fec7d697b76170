#include "common/ui/SingleLineBoxes.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <algorithm>

namespace logchecker {

namespace {

bool IsControlCharacter(QChar character) {
  switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return true;
    default:
      return false;
  }
}

QString WithoutControlCharacters(QString text) { return text.removeIf(IsControlCharacter); }

// The box that an event of a widget is for; null for none that can be written in. A box with a
// list has the focus itself, and hands its events on to its line.
QLineEdit* BoxOf(QObject* watched) {
  auto* box = qobject_cast<QLineEdit*>(watched);
  if (const auto* combo = qobject_cast<QComboBox*>(watched)) box = combo->lineEdit();
  return box != nullptr && !box->isReadOnly() ? box : nullptr;
}

// Each of these is done with an event, and then returns true, only where the text has what a box
// is not to take; all else is the toolkit's.

bool Insert(QLineEdit& box, const QString& text) {
  if (!HasControlCharacters(text)) return false;
  const QString rest = WithoutControlCharacters(text);
  if (!rest.isEmpty()) box.insert(rest);
  return true;
}

bool Paste(QLineEdit& box, QClipboard::Mode from) {
  return Insert(box, QGuiApplication::clipboard()->text(from));
}

bool TakeKey(QLineEdit& box, const QKeyEvent& key) {
  if (!key.matches(QKeySequence::Paste)) return key.text().size() > 1 && Insert(box, key.text());
  constexpr auto kOfTheSelection = Qt::ControlModifier | Qt::ShiftModifier;
  const bool selection = key.key() == Qt::Key_Insert && key.modifiers() == kOfTheSelection;
  return Paste(box, selection ? QClipboard::Selection : QClipboard::Clipboard);
}

// The middle button pastes what is selected elsewhere.
bool TakeRelease(QLineEdit& box, const QMouseEvent& event) {
  if (event.button() != Qt::MiddleButton) return false;
  const QClipboard& clipboard = *QGuiApplication::clipboard();
  if (!clipboard.supportsSelection()) return false;
  const QString text = clipboard.text(QClipboard::Selection);
  if (!HasControlCharacters(text)) return false;
  box.deselect();
  return Insert(box, text);
}

bool TakeDrop(QLineEdit& box, QDropEvent& event) {
  const QString text = event.mimeData()->text();
  if (!HasControlCharacters(text)) return false;
  QMimeData data;
  data.setText(WithoutControlCharacters(text));
  QDropEvent drop(event.position(), event.possibleActions(), &data, event.buttons(),
                  event.modifiers());
  drop.setDropAction(event.dropAction());
  QCoreApplication::sendEvent(&box, &drop);
  event.setDropAction(drop.dropAction());
  event.setAccepted(drop.isAccepted());
  return true;
}

bool TakeInput(QObject& watched, const QInputMethodEvent& event) {
  if (!HasControlCharacters(event.commitString())) return false;
  QInputMethodEvent input(event.preeditString(), event.attributes());
  input.setCommitString(WithoutControlCharacters(event.commitString()), event.replacementStart(),
                        event.replacementLength());
  QCoreApplication::sendEvent(&watched, &input);
  return true;
}

// The toolkit's entry to paste in a box's menu; null for none.
QAction* PasteEntry(const QMenu& menu) {
  for (QAction* entry : menu.actions()) {
    if (entry->text().startsWith(QLineEdit::tr("&Paste"))) return entry;
  }
  return nullptr;
}

// The toolkit's own menu, with an entry to paste that knows the rule.
bool ShowMenu(const QWidget& watched, QLineEdit& box, const QContextMenuEvent& event) {
  if (watched.contextMenuPolicy() != Qt::DefaultContextMenu) return false;
  if (qobject_cast<QAbstractSpinBox*>(box.parentWidget()) != nullptr) return false;
  QMenu* menu = box.createStandardContextMenu();
  if (menu == nullptr) return false;
  if (QAction* paste = PasteEntry(*menu)) {
    paste->disconnect(&box);
    QObject::connect(paste, &QAction::triggered, &box, [&box] {
      if (!Paste(box, QClipboard::Clipboard)) box.paste();
    });
  }
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(event.globalPos());
  return true;
}

class Keeper : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::KeyPress:
      case QEvent::MouseButtonRelease:
      case QEvent::Drop:
      case QEvent::InputMethod:
      case QEvent::ContextMenu:
        break;
      default:
        return false;
    }
    QLineEdit* box = BoxOf(watched);
    return box != nullptr && Take(*watched, *box, *event);
  }

 private:
  static bool Take(QObject& watched, QLineEdit& box, QEvent& event) {
    switch (event.type()) {
      case QEvent::KeyPress:
        return TakeKey(box, static_cast<const QKeyEvent&>(event));
      case QEvent::MouseButtonRelease:
        return TakeRelease(box, static_cast<const QMouseEvent&>(event));
      case QEvent::Drop:
        return TakeDrop(box, static_cast<QDropEvent&>(event));
      case QEvent::InputMethod:
        return TakeInput(watched, static_cast<const QInputMethodEvent&>(event));
      default:
        return ShowMenu(static_cast<const QWidget&>(watched), box,
                        static_cast<const QContextMenuEvent&>(event));
    }
  }
};

}  // namespace

bool HasControlCharacters(const QString& text) {
  return std::any_of(text.begin(), text.end(), IsControlCharacter);
}

void KeepBoxesToOneLine() { qApp->installEventFilter(new Keeper(qApp)); }

}  // namespace logchecker
