// For builds without multimedia.
#include "cartstore/ui/AnimationPlayer.h"

namespace logchecker {

std::unique_ptr<AnimationPlayer> OpenAnimation(const QString& /*hostFile*/,
                                               std::function<void(const QImage&)> /*show*/,
                                               std::function<void()> /*fail*/) {
  return nullptr;
}

}  // namespace logchecker
