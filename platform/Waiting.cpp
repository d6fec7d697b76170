#include "platform/Waiting.h"

#include <utility>

namespace logchecker {

namespace {

WaitSign gSign = nullptr;

}  // namespace

WaitSign UseWaitSign(WaitSign sign) { return std::exchange(gSign, sign); }

void GiveWaitSign(bool waiting) {
  if (gSign != nullptr) gSign(waiting);
}

}  // namespace logchecker
