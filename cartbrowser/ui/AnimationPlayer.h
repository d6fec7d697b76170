// What plays a film: Windows itself, elsewhere the toolkit's multimedia where the build has it,
// else nothing.
#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <memory>

namespace logchecker {

class AnimationPlayer {
 public:
  virtual ~AnimationPlayer() = default;

  virtual void Play() = 0;
  virtual void Stop() = 0;
};

// A player for a file of the host, held at its first picture. Each picture goes to `show`; `fail`
// is called, at any time, when the film can't be played. Nothing where the build can't play films.
std::unique_ptr<AnimationPlayer> OpenAnimation(const QString& hostFile,
                                               const std::function<void(const QImage&)>& show,
                                               const std::function<void()>& fail);

}  // namespace logchecker
