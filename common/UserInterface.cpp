#include "common/UserInterface.h"

#include <optional>

#include "platform/Waiting.h"

namespace logchecker {

namespace {

class Nobody : public UserInterface {
 public:
  MessageAnswer Show(const Message& message) override {
    return message.buttons == MessageButtons::kOk ? MessageAnswer::kOk : MessageAnswer::kCancel;
  }
  void SetMousePointer(MousePointer pointer) override { pointer_ = pointer; }
  MousePointer CurrentMousePointer() override { return pointer_; }
  void Yield() override {}
  void ShowProgress(int32_t /*value*/, int32_t /*maximum*/) override {}

 private:
  MousePointer pointer_ = MousePointer::kDefault;
};

UserInterface*& InForce() {
  static Nobody nobody;
  static UserInterface* userInterface = &nobody;
  return userInterface;
}

void ShowWait(bool waiting) {
  static std::optional<BusyPointer> busy;
  if (waiting) {
    busy.emplace();
  } else {
    busy.reset();
  }
}

}  // namespace

UserInterface& Ui() { return *InForce(); }

UserInterface& UseUserInterface(UserInterface& userInterface) {
  UseWaitSign(ShowWait);
  UserInterface& before = *InForce();
  InForce() = &userInterface;
  return before;
}

BusyPointer::BusyPointer() : before_(Ui().CurrentMousePointer()) {
  Ui().SetMousePointer(MousePointer::kHourglass);
}

BusyPointer::~BusyPointer() { Ui().SetMousePointer(before_); }

}  // namespace logchecker
