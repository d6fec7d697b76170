// Plays through the toolkit's multimedia.
#include <QCoreApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QMediaPlayer>
#include <QUrl>
#include <QVideoFrame>
#include <QVideoSink>
#include <utility>

#include "cartbrowser/ui/AnimationPlayer.h"

namespace logchecker {

namespace {

bool HasBackend(const char* name) {
  for (const QString& path : QCoreApplication::libraryPaths()) {
    if (!QDir(path + "/multimedia").entryList({QString("*%1*").arg(name)}, QDir::Files).isEmpty()) {
      return true;
    }
  }
  return false;
}

// Of the toolkit's back ends, the one upon GStreamer ends the program where parts of GStreamer are
// not installed; it is never used.
bool ChooseBackend() {
  if (HasBackend("ffmpegmediaplugin")) {
    qputenv("QT_MEDIA_BACKEND", "ffmpeg");
    // It tells of its codecs on standard error.
    QLoggingCategory::setFilterRules("default.debug=false");
    return true;
  }
  return !HasBackend("gstreamermediaplugin");
}

class MultimediaAnimationPlayer : public AnimationPlayer {
 public:
  MultimediaAnimationPlayer(const QString& hostFile, std::function<void(const QImage&)> show,
                            std::function<void()> fail) {
    player_.setVideoSink(&sink_);
    player_.setLoops(QMediaPlayer::Infinite);
    QObject::connect(&sink_, &QVideoSink::videoFrameChanged, &player_,
                     [show = std::move(show)](const QVideoFrame& frame) {
                       if (frame.isValid()) show(frame.toImage());
                     });
    QObject::connect(&player_, &QMediaPlayer::errorOccurred, &player_,
                     [fail = std::move(fail)] { fail(); });
    player_.setSource(QUrl::fromLocalFile(hostFile));
    player_.pause();
  }

  void Play() override { player_.play(); }
  void Stop() override {
    player_.pause();
    player_.setPosition(0);
  }

 private:
  QVideoSink sink_;
  QMediaPlayer player_;
};

}  // namespace

std::unique_ptr<AnimationPlayer> OpenAnimation(const QString& hostFile,
                                               const std::function<void(const QImage&)>& show,
                                               const std::function<void()>& fail) {
  static const bool usable = ChooseBackend();
  if (!usable) return nullptr;
  return std::make_unique<MultimediaAnimationPlayer>(hostFile, show, fail);
}

}  // namespace logchecker
