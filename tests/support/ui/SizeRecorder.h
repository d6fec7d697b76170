// The sizes that a window goes through.
#pragma once

#include <QObject>
#include <QResizeEvent>
#include <QSize>
#include <QWidget>
#include <vector>

namespace logchecker {

// In the order in which the window is told of them.
class SizeRecorder : public QObject {
 public:
  explicit SizeRecorder(QWidget* window) { window->installEventFilter(this); }
  std::vector<QSize> sizes;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize) {
      sizes.push_back(static_cast<QResizeEvent*>(event)->size());
    }
    return QObject::eventFilter(watched, event);
  }
};

}  // namespace logchecker
