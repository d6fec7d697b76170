#include "common/ui/ClickableLabel.h"

#include <QMouseEvent>

namespace logchecker {

ClickableLabel::ClickableLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void ClickableLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    emit clicked();
  }
}

}  // namespace logchecker
