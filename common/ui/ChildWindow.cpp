#include "common/ui/ChildWindow.h"

#include <QMainWindow>
#include <QMenuBar>

#include "common/ui/TitleBarStyle.h"
#include "common/ui/Twips.h"

namespace logchecker {

namespace {

// In twips; the pixels are those that hold all of them.
constexpr int kLeastHeight = 2000;
constexpr int kLeastWidth = 3000;

constexpr int PixelsThatHold(int twips) { return (twips + kTwipsPerPixel - 1) / kTwipsPerPixel; }

}  // namespace

ChildWindow::ChildWindow() { setStyle(ReadableTitleBars()); }

// Setting a size raises the event again, which completes the layout: the height comes first. A
// maximised window is not held to the least sizes.
void ChildWindow::HoldSizeAndLayOut() {
  if (isMinimized() || isShaded()) return;
  if (!isMaximized()) {
    if (ToTwips(height()) < kLeastHeight) {
      resize(width(), PixelsThatHold(kLeastHeight));
      return;
    }
    if (ToTwips(width()) < kLeastWidth) {
      resize(PixelsThatHold(kLeastWidth), height());
      return;
    }
  }
  LayOut();
}

void ChildWindow::resizeEvent(QResizeEvent* event) {
  QMdiSubWindow::resizeEvent(event);
  HoldSizeAndLayOut();
}

void ChildWindow::showEvent(QShowEvent* event) {
  QMdiSubWindow::showEvent(event);
  HoldSizeAndLayOut();
}

// While the window fills the frame its buttons stand in the frame's menu bar. They are put there
// once the change is through.
void ChildWindow::changeEvent(QEvent* event) {
  QMdiSubWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange || !isMaximized()) return;
  QMetaObject::invokeMethod(
      this, [this] { StyleButtonsInMenuBar(); }, Qt::QueuedConnection);
}

void ChildWindow::StyleButtonsInMenuBar() {
  auto* frame = qobject_cast<QMainWindow*>(window());
  if (frame == nullptr) return;
  if (QWidget* buttons = frame->menuBar()->cornerWidget()) buttons->setStyle(ReadableTitleBars());
}

void ChildWindow::focusInEvent(QFocusEvent* event) {
  QMdiSubWindow::focusInEvent(event);
  if (!isMinimized()) FirstControl()->setFocus();
}

}  // namespace logchecker
