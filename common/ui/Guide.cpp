#include "common/ui/Guide.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QKeyEvent>
#include <QUrl>
#include <QVariant>
#include <QWidget>

#include "common/UserInterface.h"
#include "common/ui/Guard.h"
#include "common/ui/StationQString.h"

namespace logchecker {

namespace {

constexpr char kPageProperty[] = "guidePage";
constexpr char kOwnKeyProperty[] = "ownF1";
constexpr char kFolder[] = "/guide/";

// The widget, or the nearest around it, that has a page; none has one where this is null. A dialog
// stands in the window that opened it.
const QWidget* WidgetWithPage(const QWidget* widget) {
  while (widget != nullptr && !widget->property(kPageProperty).isValid()) {
    widget = widget->parentWidget();
  }
  return widget;
}

bool KeepsF1(const QWidget* widget) {
  const QWidget* found = WidgetWithPage(widget);
  return found != nullptr && found->property(kOwnKeyProperty).toBool();
}

void Tell(const QString& words) {
  Ui().Show({FromQString(words), MessageIcon::kInformation, MessageButtons::kOk, kProgramTitle});
}

class GuideKey : public QObject {
 public:
  using QObject::QObject;

 protected:
  // A key comes to the window of the system first, which is no widget, and then to the control.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
    const auto* widget = static_cast<const QWidget*>(watched);
    if (KeepsF1(widget)) return false;
    if (!key.isAutoRepeat()) OpenGuide(widget);
    return true;
  }
};

}  // namespace

void SetGuidePage(QWidget& window, const char* page) { window.setProperty(kPageProperty, page); }

void KeepF1(QWidget& window) { window.setProperty(kOwnKeyProperty, true); }

QString GuideFile(const QString& page) {
  return QCoreApplication::applicationDirPath() + kFolder + page + ".html";
}

void OpenGuide(const QWidget* from) {
  const QWidget* found = WidgetWithPage(from);
  const QString file = GuideFile(found == nullptr ? QString(kGuideTasks)
                                                  : found->property(kPageProperty).toString());
  Guarded([&file] {
    if (!QFileInfo::exists(file)) {
      Tell("The guide is not there: it should lie in\n" + file +
           "\n\nInstall Log Checker again to bring it back.");
    } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file))) {
      Tell("No program was found that shows the guide. It lies in\n" + file +
           "\n\nOpen it with any browser.");
    }
  });
}

void HoldGuideKey() { qApp->installEventFilter(new GuideKey(qApp)); }

}  // namespace logchecker
