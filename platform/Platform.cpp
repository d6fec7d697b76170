#include "platform/Platform.h"

namespace logchecker {

namespace {

Platform*& InForce() {
  static Platform* platform = &RealPlatform();
  return platform;
}

}  // namespace

Platform& Os() { return *InForce(); }

Platform& UsePlatform(Platform& platform) {
  Platform& before = *InForce();
  InForce() = &platform;
  return before;
}

}  // namespace logchecker
