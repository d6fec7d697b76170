// Keeps a window on its screen, together with the frame that the desktop draws around it.
#pragma once

#include <QObject>
#include <QPointer>

class QScreen;
class QWidget;

namespace logchecker {

// How wide that frame is is known only some time after the window has been shown. A window that
// would fit without it is then made smaller by what is missing. When the window comes to a smaller
// screen, or its screen becomes smaller, it is made to fit there too. A size that somebody asked
// for beyond the screen's own stays until then.
class ScreenFit : public QObject {
  Q_OBJECT

 public:
  // Lives as long as the window.
  explicit ScreenFit(QWidget& window);

  // What a window without its frame can have at most, before that frame is known.
  static QSize RoomOn(const QScreen& screen);

 signals:
  // The window as it was first shown has been made smaller.
  void firstSizeFitted();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowScreen();
  void FitFirstSize();
  bool Shrink();
  void MoveInside();

  QWidget& window_;
  QPointer<QScreen> screen_;
  bool frameIsKnown_ = false;
};

}  // namespace logchecker
