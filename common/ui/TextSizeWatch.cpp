#include "common/ui/TextSizeWatch.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>

namespace logchecker {

void WhenTextSizeChanges(QObject& context, const std::function<void()>& work) {
  static QPointer<TextSizeWatch> watch;
  if (!watch) watch = new TextSizeWatch(qApp);
  QObject::connect(watch, &TextSizeWatch::changed, &context, work);
}

TextSizeWatch::TextSizeWatch(QObject* parent) : QObject(parent), known_(QApplication::font()) {
  qApp->installEventFilter(this);
}

bool TextSizeWatch::eventFilter(QObject* watched, QEvent* event) {
  if (watched == qApp && event->type() == QEvent::ApplicationFontChange) {
    known_ = QApplication::font();
    emit changed();
  }
  // On some desktops a new font comes with a change of all the looks, of which windows alone hear.
  if (event->type() == QEvent::ThemeChange && known_ != QApplication::font()) {
    known_ = QApplication::font();
    QEvent tellAll(QEvent::ApplicationFontChange);
    QCoreApplication::sendEvent(qApp, &tellAll);
  }
  return false;
}

}  // namespace logchecker
