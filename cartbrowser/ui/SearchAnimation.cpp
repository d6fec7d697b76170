#include "cartbrowser/ui/SearchAnimation.h"

#include <QPainter>

#include "cartbrowser/ui/AnimationPlayer.h"
#include "common/FileHelpers.h"
#include "platform/HostPaths.h"

namespace logchecker {

namespace {

constexpr int kWidth = 36;  // pixels
constexpr int kHeight = 24;

}  // namespace

SearchAnimation::SearchAnimation(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

SearchAnimation::~SearchAnimation() = default;

QSize SearchAnimation::sizeHint() const { return {kWidth, kHeight}; }

bool SearchAnimation::Open(const std::string& file) {
  Close();
  if (GetFileLength(file) < 0) return false;
  const auto fail = [this] {
    // Behind the call of the player, which goes.
    QMetaObject::invokeMethod(
        this,
        [this] {
          Close();
          emit failed();
        },
        Qt::QueuedConnection);
  };
  player_ = OpenAnimation(
      QString::fromStdString(ToHostPath(file)),
      [this](const QImage& picture) { ShowPicture(picture); }, fail);
  return player_ != nullptr;
}

void SearchAnimation::Play() {
  playing_ = true;
  if (player_) player_->Play();
}

// Pictures that are still on their way come too late.
void SearchAnimation::Stop() {
  playing_ = false;
  if (player_) player_->Stop();
  picture_ = first_;
  update();
}

void SearchAnimation::Close() {
  player_.reset();
  picture_ = first_ = QImage();
  update();
}

void SearchAnimation::ShowPicture(const QImage& picture) {
  if (first_.isNull()) {
    first_ = picture;
  } else if (!playing_) {
    return;
  }
  picture_ = picture;
  update();
}

void SearchAnimation::paintEvent(QPaintEvent* /*event*/) {
  if (picture_.isNull()) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  const QSize size = picture_.size().scaled(this->size(), Qt::KeepAspectRatio);
  QRect place({}, size);
  place.moveCenter(rect().center());
  painter.drawImage(place, picture_);
}

}  // namespace logchecker
