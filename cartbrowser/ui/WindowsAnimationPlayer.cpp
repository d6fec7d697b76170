// Plays through the system's own reader of films and its decoders.
#include "platform/windows/WindowsApi.h"
//
#include <vfw.h>

#include <QTimer>
#include <utility>

#include "cartbrowser/ui/AnimationPlayer.h"

namespace logchecker {

namespace {

// What the system gives a picture as: rows from the bottom up, each a multiple of four bytes.
QImage ToImage(const BITMAPINFOHEADER& head) {
  const bool known = head.biCompression == BI_RGB && head.biWidth > 0 && head.biHeight > 0;
  if (!known || (head.biBitCount != 24 && head.biBitCount != 32)) return {};
  const int width = head.biWidth;
  const int height = head.biHeight;
  const auto* bits = reinterpret_cast<const uchar*>(&head) + head.biSize +
                     static_cast<size_t>(head.biClrUsed) * sizeof(RGBQUAD);
  const qsizetype row = (static_cast<qsizetype>(width) * head.biBitCount + 31) / 32 * 4;
  const QImage upsideDown(bits, width, height, row,
                          head.biBitCount == 32 ? QImage::Format_RGB32 : QImage::Format_BGR888);
  // A copy: the system's own goes with the next picture.
  return upsideDown.mirrored();
}

class Film {
 public:
  explicit Film(const QString& hostFile) {
    AVIFileInit();
    const std::wstring name = hostFile.toStdWString();
    if (AVIStreamOpenFromFileW(&stream_, name.c_str(), streamtypeVIDEO, 0,
                               OF_READ | OF_SHARE_DENY_NONE, nullptr) != AVIERR_OK) {
      stream_ = nullptr;
      return;
    }
    pictures_ = AVIStreamGetFrameOpen(stream_, nullptr);
  }
  ~Film() {
    if (pictures_ != nullptr) AVIStreamGetFrameClose(pictures_);
    if (stream_ != nullptr) AVIStreamRelease(stream_);
    AVIFileExit();
  }
  Film(const Film&) = delete;
  Film& operator=(const Film&) = delete;

  QImage Picture(LONG number) const {
    if (pictures_ == nullptr) return {};
    const void* found = AVIStreamGetFrame(pictures_, AVIStreamStart(stream_) + number);
    return found == nullptr ? QImage() : ToImage(*static_cast<const BITMAPINFOHEADER*>(found));
  }
  LONG Count() const { return stream_ == nullptr ? 0 : AVIStreamLength(stream_); }
  // Of one picture.
  int Milliseconds() const {
    constexpr int kUsual = 100;
    AVISTREAMINFOW facts{};
    if (AVIStreamInfoW(stream_, &facts, sizeof(facts)) != AVIERR_OK || facts.dwRate == 0) {
      return kUsual;
    }
    return static_cast<int>(1000.0 * facts.dwScale / facts.dwRate);
  }

 private:
  PAVISTREAM stream_ = nullptr;
  PGETFRAME pictures_ = nullptr;
};

class WindowsAnimationPlayer : public AnimationPlayer {
 public:
  WindowsAnimationPlayer(const QString& hostFile, std::function<void(const QImage&)> show,
                         const std::function<void()>& fail)
      : film_(hostFile), show_(std::move(show)) {
    const QImage first = film_.Picture(0);
    if (first.isNull()) {
      fail();
      return;
    }
    show_(first);
    timer_.setInterval(film_.Milliseconds());
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { ShowNext(); });
  }

  void Play() override {
    if (timer_.interval() > 0) timer_.start();
  }
  void Stop() override {
    timer_.stop();
    next_ = 0;
  }

 private:
  void ShowNext() {
    const QImage picture = film_.Picture(next_);
    next_ = (next_ + 1) % film_.Count();
    if (!picture.isNull()) show_(picture);
  }

  Film film_;
  std::function<void(const QImage&)> show_;
  QTimer timer_;
  LONG next_ = 0;
};

}  // namespace

std::unique_ptr<AnimationPlayer> OpenAnimation(const QString& hostFile,
                                               const std::function<void(const QImage&)>& show,
                                               const std::function<void()>& fail) {
  return std::make_unique<WindowsAnimationPlayer>(hostFile, show, fail);
}

}  // namespace logchecker
