// Message boxes, pointer and progress on the desktop.
#pragma once

#include <functional>
#include <memory>

#include "common/UserInterface.h"

class QProgressDialog;

namespace logchecker {

// In force for as long as it lives.
class QtUserInterface : public UserInterface {
 public:
  QtUserInterface();
  ~QtUserInterface() override;
  QtUserInterface(const QtUserInterface&) = delete;
  QtUserInterface& operator=(const QtUserInterface&) = delete;

  // A box over the active window. Its text is shown as it is, never as markup.
  MessageAnswer Show(const Message& message) override;
  void SetMousePointer(MousePointer pointer) override;
  MousePointer CurrentMousePointer() override { return pointer_; }
  void Yield() override;
  void ShowProgress(int32_t value, int32_t maximum) override;
  // A window for a copy that takes more than half a second; gone when the copy is done.
  void ShowFileProgress(const std::string& title, int64_t done, int64_t total) override;

 private:
  MousePointer pointer_ = MousePointer::kDefault;
  std::unique_ptr<QProgressDialog> fileProgress_;
  UserInterface& before_;
};

// Sees the progress of long jobs for as long as it lives.
class ProgressWatch {
 public:
  using Watcher = std::function<void(int32_t value, int32_t maximum)>;

  explicit ProgressWatch(Watcher watcher);
  ~ProgressWatch();
  ProgressWatch(const ProgressWatch&) = delete;
  ProgressWatch& operator=(const ProgressWatch&) = delete;

 private:
  Watcher before_;
};

// A box of one's own with a single button, through the user interface in force.
void ShowInformation(const std::string& text);

}  // namespace logchecker
