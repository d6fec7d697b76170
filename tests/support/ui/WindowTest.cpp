#include "tests/support/ui/WindowTest.h"

#include <qtestspontaneevent.h>
#include <QAbstractButton>
#include <QAccessible>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>

#include "common/ui/VisibleFocus.h"
#include "printing/ui/PrinterChoice.h"

namespace logchecker {

WindowTest::WindowTest()
    : before_(UseStopRoutine([this](const RunTimeError& error) {
        if (stoppedBy_ != 0) return;
        stoppedBy_ = error.number();
        concerning_ = error.concerning();
      })) {
  gLastPrinter.reset();
  // A test before this one may have ended its program; until the next loop none would run.
  QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
  QApplication::exec();
}

WindowTest::~WindowTest() { UseStopRoutine(before_); }

std::string FolderShown(const QDialog* files) {
  const auto* dialog = qobject_cast<const QFileDialog*>(files);
  EXPECT_NE(dialog, nullptr) << "not a file dialog";
  if (dialog == nullptr) return "";
  return QDir::toNativeSeparators(dialog->directory().canonicalPath()).toStdString();
}

DialogScript::DialogScript() { qApp->installEventFilter(this); }

DialogScript::DialogScript(Work work) : DialogScript() { Then(std::move(work)); }

DialogScript::~DialogScript() {
  EXPECT_TRUE(works_.isEmpty()) << works_.size() << " dialogs did not open";
}

DialogScript& DialogScript::Then(Work work) {
  works_.push_back(std::move(work));
  return *this;
}

DialogScript& DialogScript::Answer(QMessageBox::StandardButton button) {
  return Then([this, button](QDialog* dialog) {
    auto* box = qobject_cast<QMessageBox*>(dialog);
    ASSERT_NE(box, nullptr) << "not a message box: " << dialog->objectName().toStdString();
    texts_.push_back(box->text());
    ASSERT_NE(box->button(button), nullptr) << "no such button";
    QTest::mouseClick(box->button(button), Qt::LeftButton);
  });
}

bool DialogScript::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show) {
    if (auto* dialog = qobject_cast<QDialog*>(watched); dialog != nullptr && dialog->isModal()) {
      QMetaObject::invokeMethod(
          this,
          [this, guarded = QPointer<QDialog>(dialog)] {
            if (guarded) Run(guarded);
          },
          Qt::QueuedConnection);
    }
  }
  return QObject::eventFilter(watched, event);
}

void DialogScript::Run(QDialog* dialog) {
  if (works_.isEmpty()) {
    const auto* box = qobject_cast<QMessageBox*>(dialog);
    ADD_FAILURE() << "an unexpected dialog: " << dialog->objectName().toStdString() << " "
                  << (box != nullptr ? box->text().toStdString() : "");
    dialog->reject();
    return;
  }
  const Work work = works_.takeFirst();
  work(dialog);
}

namespace {

void ExpectNamed(QAccessibleInterface* part, int depth) {
  constexpr int kDeepest = 20;
  constexpr int kMostChildren = 400;
  if (part == nullptr || !part->isValid() || depth > kDeepest) return;
  const QAccessible::State state = part->state();
  if (state.invisible != 0) return;
  if (state.focusable != 0) {
    EXPECT_FALSE(part->text(QAccessible::Name).trimmed().isEmpty())
        << "without a name: "
        << (part->object() != nullptr ? part->object()->metaObject()->className() : "a part") << " "
        << (part->object() != nullptr ? part->object()->objectName().toStdString() : "")
        << ", role " << part->role();
  }
  for (int i = 0; i < std::min(part->childCount(), kMostChildren); ++i) {
    ExpectNamed(part->child(i), depth + 1);
  }
}

}  // namespace

void SendByUser(QWidget* widget, QEvent& event) {
  QSpontaneKeyEvent::setSpontaneous(&event);
  QApplication::instance()->notify(widget, &event);
}

bool CloseByUser(QWidget* window) {
  QCloseEvent event;
  SendByUser(window, event);
  return event.isAccepted();
}

void ExpectEverythingNamed(QWidget* window) {
  QAccessibleInterface* top = QAccessible::queryAccessibleInterface(window);
  ASSERT_NE(top, nullptr);
  ExpectNamed(top, 0);
}

namespace {

std::vector<QWidget*> ControlsInTabOrder(QWidget* window) {
  std::vector<QWidget*> order;
  for (QWidget* next = window->nextInFocusChain(); next != nullptr && next != window;
       next = next->nextInFocusChain()) {
    const bool reached = (next->focusPolicy() & Qt::TabFocus) != 0 && next->isEnabled() &&
                         next->isVisibleTo(window) && next->focusProxy() == nullptr;
    if (reached && !next->objectName().isEmpty()) order.push_back(next);
  }
  return order;
}

}  // namespace

QStringList TabOrder(QWidget* window) {
  QStringList order;
  for (const QWidget* control : ControlsInTabOrder(window)) order.push_back(control->objectName());
  return order;
}

void ExpectFocusSeen(QWidget* window) {
  // For the whole run: a program holds it once too.
  static const bool held = (HoldVisibleFocus(), true);
  Q_UNUSED(held);
  QApplication::setActiveWindow(window->window());
  const auto look = [window] {
    QApplication::processEvents();
    return window->grab().toImage();
  };
  // Shows nothing, and has the focus meanwhile.
  QWidget elsewhere(window->window());
  elsewhere.setGeometry(0, 0, 1, 1);
  elsewhere.setFocusPolicy(Qt::ClickFocus);
  elsewhere.show();
  elsewhere.setFocus(Qt::OtherFocusReason);
  int seen = 0;
  for (QWidget* control : ControlsInTabOrder(window)) {
    control->setFocus(Qt::OtherFocusReason);
    // A window inside the window hands it on.
    if (!control->hasFocus()) continue;
    const QImage with = look();
    elsewhere.setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(with != look()) << qPrintable(control->objectName()) << " does not show the focus";
    ++seen;
  }
  EXPECT_GT(seen, 0);
}

}  // namespace logchecker
