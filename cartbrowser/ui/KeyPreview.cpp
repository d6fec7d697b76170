#include "cartbrowser/ui/KeyPreview.h"

#include <QApplication>
#include <QWidget>
#include <string>
#include <utility>

#include "cartbrowser/KeyCodes.h"
#include "common/ui/Guard.h"
#include "common/ui/StationQString.h"

namespace logchecker {

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
