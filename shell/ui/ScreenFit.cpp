#include "shell/ui/ScreenFit.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>

namespace logchecker {

namespace {

// As much as usual desktops draw around a window.
constexpr QSize kUsualFrame{16, 48};

QSize FrameOf(const QWidget& window) { return window.frameGeometry().size() - window.size(); }

bool IsFree(const QWidget& window) {
  return window.isVisible() && (window.windowState() & (Qt::WindowMinimized | Qt::WindowMaximized |
                                                        Qt::WindowFullScreen)) == Qt::WindowNoState;
}

bool Holds(const QSize& room, const QSize& size) { return size == size.boundedTo(room); }

}  // namespace

ScreenFit::ScreenFit(QWidget& window) : QObject(&window), window_(window) {
  window.installEventFilter(this);
}

QSize ScreenFit::RoomOn(const QScreen& screen) { return screen.availableSize() - kUsualFrame; }

bool ScreenFit::eventFilter(QObject* watched, QEvent* event) {
  if (watched != &window_) return false;
  switch (event->type()) {
    case QEvent::Show:
      if (screen_ == nullptr) {
        connect(window_.windowHandle(), &QWindow::screenChanged, this, [this] {
          FollowScreen();
          Shrink();  // and no more: the user may be moving it
        });
        FollowScreen();
      }
      [[fallthrough]];
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowActivate:
      if (!frameIsKnown_) FitFirstSize();
      break;
    default:
      break;
  }
  return false;
}

void ScreenFit::FollowScreen() {
  if (screen_ != nullptr) screen_->disconnect(this);
  screen_ = window_.screen();
  connect(screen_, &QScreen::availableGeometryChanged, this, [this] {
    Shrink();
    MoveInside();
  });
}

void ScreenFit::FitFirstSize() {
  if (!IsFree(window_) || FrameOf(window_).isNull()) return;
  frameIsKnown_ = true;
  if (!Holds(screen_->availableSize(), window_.size())) return;
  if (!Shrink()) return;
  MoveInside();
  emit firstSizeFitted();
}

bool ScreenFit::Shrink() {
  const QSize room = screen_->availableSize() - FrameOf(window_);
  if (!IsFree(window_) || Holds(room, window_.size())) return false;
  window_.resize(window_.size().boundedTo(room));
  return true;
}

void ScreenFit::MoveInside() {
  if (!IsFree(window_)) return;
  const QRect free = screen_->availableGeometry();
  const QRect whole(window_.pos(), window_.size() + FrameOf(window_));
  const QPoint last(std::max(free.right() - whole.width() + 1, free.left()),
                    std::max(free.bottom() - whole.height() + 1, free.top()));
  const QPoint place(std::clamp(whole.left(), free.left(), last.x()),
                     std::clamp(whole.top(), free.top(), last.y()));
  if (place != whole.topLeft()) window_.move(place);
}

}  // namespace logchecker
