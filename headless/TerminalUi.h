// A user interface on standard error, for a program that nobody watches.
#pragma once

#include <string>
#include <vector>

#include "common/UserInterface.h"

namespace logchecker {

// Writes "logcheck: " and `text` as one line on standard error: line feeds become blanks.
void WriteErrorLine(const std::string& text);

// Keeps messages until they are taken. A question is cancelled, or answered Yes with
// `createMissing`. Progress shows on a terminal alone.
class TerminalUi : public UserInterface {
 public:
  explicit TerminalUi(bool createMissing);
  ~TerminalUi() override;
  TerminalUi(const TerminalUi&) = delete;
  TerminalUi& operator=(const TerminalUi&) = delete;

  MessageAnswer Show(const Message& message) override;
  void SetMousePointer(MousePointer pointer) override { pointer_ = pointer; }
  MousePointer CurrentMousePointer() override { return pointer_; }
  void Yield() override {}
  void ShowProgress(int32_t value, int32_t maximum) override;

  // The texts of the messages shown since the last call, in order.
  std::vector<std::string> TakeMessages();
  // Takes them, and writes each as a warning.
  void WriteWarnings();

 private:
  bool createMissing_;
  bool onTerminal_;
  int32_t shownPercent_ = 0;
  MousePointer pointer_ = MousePointer::kDefault;
  std::vector<std::string> messages_;
  UserInterface& before_;
};

}  // namespace logchecker
