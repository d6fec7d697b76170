#include "common/ui/CutTextTips.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyleOptionFrame>
#include <QToolTip>

#include "common/ui/StationQString.h"

namespace logchecker {

namespace {

constexpr int kBoxMargins = 4;  // pixels that the toolkit leaves free beside the text of a box

bool IsCut(const QWidget& widget, const QString& text, int room) {
  return widget.fontMetrics().horizontalAdvance(text) > room;
}

QString CutTextOfBox(const QLineEdit& box) {
  QStyleOptionFrame frame;
  frame.initFrom(&box);
  frame.lineWidth = box.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, &box);
  const QRect inner = box.style()->subElementRect(QStyle::SE_LineEditContents, &frame, &box);
  const QString text = box.displayText();
  return IsCut(box, text, inner.width() - kBoxMargins) ? text : QString();
}

QString CutTextOfLabel(const QLabel& label) {
  if (label.wordWrap() || label.text().contains('\n')) return {};
  return IsCut(label, label.text(), label.contentsRect().width()) ? label.text() : QString();
}

class CutTextTips : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ToolTip || !watched->isWidgetType()) return false;
    auto* widget = static_cast<QWidget*>(watched);
    const QString text = widget->toolTip().isEmpty() ? CutText(widget) : QString();
    if (text.isEmpty()) return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), AsToolTip(text), widget);
    return true;
  }
};

}  // namespace

QString CutText(const QWidget* widget) {
  if (const auto* box = qobject_cast<const QLineEdit*>(widget)) return CutTextOfBox(*box);
  if (const auto* label = qobject_cast<const QLabel*>(widget)) return CutTextOfLabel(*label);
  return {};
}

void HoldCutTextTips() { qApp->installEventFilter(new CutTextTips(qApp)); }

}  // namespace logchecker
