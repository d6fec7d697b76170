// How often a widget is painted.
#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>

namespace logchecker {

class PaintCounter : public QObject {
 public:
  explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace logchecker
