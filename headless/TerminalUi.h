// A user interface on standard error, for a program that nobody watches.
#pragma once

#include <string>
#include <vector>

#include "common/UserInterface.h"

namespace logchecker {

// Line ends as blanks.
std::string OneLine(std::string text);

// Writes "logcheck: " and `text` as one line on standard error: line feeds become blanks.
void WriteErrorLine(const std::string& text);

// For as long as it lives, WriteErrorLine writes nothing: what it would say stands in a report.
class QuietErrorLines {
 public:
  QuietErrorLines();
  ~QuietErrorLines();
  QuietErrorLines(const QuietErrorLines&) = delete;
  QuietErrorLines& operator=(const QuietErrorLines&) = delete;
};

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
  // Writes the text as a warning, and keeps it for the report.
  void Warn(const std::string& text);
  // What was warned of since the last call, in order.
  std::vector<std::string> TakeWarnings();

 private:
  bool createMissing_;
  bool onTerminal_;
  int32_t shownPercent_ = 0;
  MousePointer pointer_ = MousePointer::kDefault;
  std::vector<std::string> messages_;
  std::vector<std::string> warnings_;
  UserInterface& before_;
};

}  // namespace logchecker
