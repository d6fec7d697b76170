// For builds without multimedia.
#include "cartbrowser/ui/AnimationPlayer.h"

namespace logchecker {

std::unique_ptr<AnimationPlayer> OpenAnimation(const QString& /*hostFile*/,
                                               const std::function<void(const QImage&)>& /*show*/,
                                               const std::function<void()>& /*fail*/) {
  return nullptr;
}

}  // namespace logchecker
