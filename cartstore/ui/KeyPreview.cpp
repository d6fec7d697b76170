#include "cartstore/ui/KeyPreview.h"

#include <QApplication>
#include <QWidget>
#include <string>
#include <utility>

#include "cartstore/KeyCodes.h"
#include "common/ui/Guard.h"
#include "common/ui/StationQString.h"

namespace logchecker {

int32_t KeyCodeOf(const QKeyEvent& key) {
  const int code = key.key();
  if (code >= Qt::Key_F1 && code <= Qt::Key_F12) return kKeyF1 + (code - Qt::Key_F1);
  switch (code) {
    case Qt::Key_Backspace:
      return kKeyBackspace;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return kKeyTab;
    case Qt::Key_Escape:
      return kKeyEscape;
    case Qt::Key_Space:
      return kKeySpace;
    case Qt::Key_PageUp:
      return kKeyPageUp;
    case Qt::Key_PageDown:
      return kKeyPageDown;
    case Qt::Key_Up:
      return kKeyUp;
    case Qt::Key_Down:
      return kKeyDown;
    case Qt::Key_J:
      return kKeyJ;
    case Qt::Key_Q:
      return kKeyQ;
    default:
      return 0;
  }
}

char CharacterOf(const QKeyEvent& key) {
  if (key.key() == Qt::Key_Escape) return static_cast<char>(kKeyEscape);
  if (key.key() == Qt::Key_Backspace) return static_cast<char>(kKeyBackspace);
  if ((key.modifiers() & Qt::AltModifier) != 0 && (key.modifiers() & Qt::ControlModifier) == 0) {
    return 0;
  }
  const std::string text = FromQString(key.text());
  return text.size() == 1 ? text.front() : '\0';
}

KeyPreview::KeyPreview(QWidget& window, Handler handler)
    : QObject(&window), window_(window), handler_(std::move(handler)) {
  qApp->installEventFilter(this);
}

// A key that a control leaves goes on to the window around it, which has seen it by then.
bool KeyPreview::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  const QWidget* const focus = window_.focusWidget();
  if (watched != (focus != nullptr ? focus : &window_)) return false;
  bool swallowed = false;
  Guarded([&] { swallowed = handler_(static_cast<const QKeyEvent&>(*event)); });
  return swallowed;
}

}  // namespace logchecker
