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
constexpr char kFolder[] = "/guide/";

// Of the widget, or of the nearest around it. A dialog stands in the window that opened it.
QString PageOf(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    const QVariant page = widget->property(kPageProperty);
    if (page.isValid()) return page.toString();
  }
  return kGuideTasks;
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
    if (!key.isAutoRepeat()) OpenGuide(static_cast<const QWidget*>(watched));
    return true;
  }
};

}  // namespace

void SetGuidePage(QWidget& window, const char* page) { window.setProperty(kPageProperty, page); }

QString GuideFile(const QString& page) {
  return QCoreApplication::applicationDirPath() + kFolder + page + ".html";
}

void OpenGuide(const QWidget* from) {
  const QString file = GuideFile(PageOf(from));
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
