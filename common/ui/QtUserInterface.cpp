#include "common/ui/QtUserInterface.h"

#include <QApplication>
#include <QMessageBox>
#include <QProgressDialog>
#include <utility>

#include "common/ui/Guide.h"
#include "common/ui/StationQString.h"

namespace logchecker {

namespace {

ProgressWatch::Watcher& TheWatcher() {
  static ProgressWatch::Watcher watcher;
  return watcher;
}

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kInformation:
      return QMessageBox::Information;
    case MessageIcon::kQuestion:
      return QMessageBox::Question;
    case MessageIcon::kExclamation:
      return QMessageBox::Warning;
    case MessageIcon::kCritical:
      return QMessageBox::Critical;
    case MessageIcon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

MessageAnswer AnswerOf(int button, MessageButtons buttons) {
  switch (button) {
    case QMessageBox::Yes:
      return MessageAnswer::kYes;
    case QMessageBox::No:
      return MessageAnswer::kNo;
    default:
      return buttons == MessageButtons::kOk ? MessageAnswer::kOk : MessageAnswer::kCancel;
  }
}

}  // namespace

QtUserInterface::QtUserInterface() : before_(UseUserInterface(*this)) {}

QtUserInterface::~QtUserInterface() {
  QtUserInterface::SetMousePointer(MousePointer::kDefault);
  UseUserInterface(before_);
}

MessageAnswer QtUserInterface::Show(const Message& message) {
  QMessageBox box(QApplication::activeWindow());
  box.setObjectName("MsgBox");
  if (message.icon == MessageIcon::kCritical || message.icon == MessageIcon::kExclamation) {
    SetGuidePage(box, kGuideTrouble);
  }
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQString(message.text));
  box.setWindowTitle(AsTitle(ToQString(message.title)));
  box.setIcon(IconOf(message.icon));
  box.setStandardButtons(message.buttons == MessageButtons::kOk
                             ? QMessageBox::Ok
                             : QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  const MousePointer shown = pointer_;
  SetMousePointer(MousePointer::kDefault);
  const int button = box.exec();
  SetMousePointer(shown);
  return AnswerOf(button, message.buttons);
}

void QtUserInterface::SetMousePointer(MousePointer pointer) {
  if (pointer == pointer_) return;
  pointer_ = pointer;
  if (pointer == MousePointer::kHourglass) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

void QtUserInterface::Yield() { QApplication::processEvents(); }

void QtUserInterface::ShowProgress(int32_t value, int32_t maximum) {
  if (TheWatcher()) TheWatcher()(value, maximum);
}

void QtUserInterface::ShowFileProgress(const std::string& title, int64_t done, int64_t total) {
  constexpr int kMinimumDuration = 500;  // milliseconds
  constexpr int kSteps = 1000;
  if (done >= total) {
    fileProgress_.reset();
    return;
  }
  if (!fileProgress_) {
    fileProgress_ = std::make_unique<QProgressDialog>(QApplication::activeWindow());
    fileProgress_->setWindowTitle(AsTitle(ToQString(title)));
    fileProgress_->setCancelButton(nullptr);
    fileProgress_->setMinimumDuration(kMinimumDuration);
    fileProgress_->setWindowModality(Qt::ApplicationModal);
    fileProgress_->setRange(0, kSteps);
  }
  fileProgress_->setValue(static_cast<int>(kSteps * done / total));
}

ProgressWatch::ProgressWatch(Watcher watcher)
    : before_(std::exchange(TheWatcher(), std::move(watcher))) {}

ProgressWatch::~ProgressWatch() { TheWatcher() = std::move(before_); }

void ShowInformation(const std::string& text) {
  Ui().Show({text, MessageIcon::kInformation, MessageButtons::kOk, kProgramTitle});
}

}  // namespace logchecker
