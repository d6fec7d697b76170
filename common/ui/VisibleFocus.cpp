#include "common/ui/VisibleFocus.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPointer>
#include <QPushButton>

namespace logchecker {

namespace {

// In pixels.
constexpr int kListLine = 2;
constexpr int kButtonLine = 1;
constexpr int kButtonInset = 3;

// A line over a control: around a list in place of its frame, inside the frame of a button.
class FocusLine : public QWidget {
 public:
  FocusLine(QWidget* control, bool isList)
      : QWidget(control),
        isList_(isList),
        width_(isList ? kListLine : kButtonLine),
        inset_(isList ? 0 : kButtonInset) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    control->installEventFilter(this);
    Fit();
    show();
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Resize) Fit();
    return false;
  }
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    const QPalette::ColorRole role = isList_ ? QPalette::Highlight : QPalette::ButtonText;
    painter.fillRect(rect(), palette().color(QPalette::Active, role));
  }

 private:
  // Without its middle, so that what scrolls below it is not drawn twice.
  void Fit() {
    setGeometry(parentWidget()->rect().adjusted(inset_, inset_, -inset_, -inset_));
    setMask(QRegion(rect()) - rect().adjusted(width_, width_, -width_, -width_));
    raise();
  }

  bool isList_;
  int width_;
  int inset_;
};

class VisibleFocus : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (!watched->isWidgetType()) return false;
    auto* widget = static_cast<QWidget*>(watched);
    if (event->type() == QEvent::FocusIn) {
      widget->window()->setAttribute(Qt::WA_KeyboardFocusChange);
      delete line_;
      const bool isList = qobject_cast<QAbstractItemView*>(widget) != nullptr;
      const bool isButton = qobject_cast<QPushButton*>(widget) != nullptr;
      if ((isList || isButton) && widget->window()->windowType() != Qt::Popup) {
        line_ = new FocusLine(widget, isList);
      }
    } else if (event->type() == QEvent::FocusOut && line_ && line_->parentWidget() == widget) {
      delete line_;
    }
    return false;
  }

 private:
  QPointer<FocusLine> line_;
};

}  // namespace

void HoldVisibleFocus() { qApp->installEventFilter(new VisibleFocus(qApp)); }

}  // namespace logchecker
