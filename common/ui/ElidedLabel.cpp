#include "common/ui/ElidedLabel.h"

#include <QEvent>

namespace logchecker {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  // The text would otherwise hold the window to its width.
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::SetWholeText(const QString& text) {
  whole_ = text;
  setAccessibleName(text);
  Fit();
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  Fit();
}

void ElidedLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::FontChange) Fit();
}

void ElidedLabel::Fit() {
  setText(fontMetrics().elidedText(whole_, Qt::ElideRight, contentsRect().width()));
}

}  // namespace logchecker
