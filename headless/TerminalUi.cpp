#include "headless/TerminalUi.h"

#include <algorithm>
#include <utility>

#include "platform/StandardStreams.h"

namespace logchecker {

namespace {

int gQuiet = 0;

}  // namespace

std::string OneLine(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
  return text;
}

QuietErrorLines::QuietErrorLines() { ++gQuiet; }

QuietErrorLines::~QuietErrorLines() { --gQuiet; }

void WriteErrorLine(const std::string& text) {
  if (gQuiet > 0) return;
  WriteStandardError("logcheck: " + OneLine(text) + "\n");
}

TerminalUi::TerminalUi(bool createMissing)
    : createMissing_(createMissing),
      onTerminal_(StandardErrorIsTerminal()),
      before_(UseUserInterface(*this)) {}

TerminalUi::~TerminalUi() { UseUserInterface(before_); }

MessageAnswer TerminalUi::Show(const Message& message) {
  if (message.buttons == MessageButtons::kOk) {
    messages_.push_back(message.text);
    return MessageAnswer::kOk;
  }
  if (createMissing_) return MessageAnswer::kYes;
  messages_.push_back(message.text + " (--create-missing answers yes)");
  return MessageAnswer::kCancel;
}

void TerminalUi::ShowProgress(int32_t value, int32_t maximum) {
  if (!onTerminal_ || maximum < 1) return;
  const int32_t percent = static_cast<int32_t>(int64_t{100} * value / maximum);
  if (percent == shownPercent_) return;
  shownPercent_ = percent;
  const std::string text = percent == 0 ? "    " : std::to_string(percent) + " %";
  OverwriteTerminalLine(text);
}

std::vector<std::string> TerminalUi::TakeMessages() { return std::exchange(messages_, {}); }

void TerminalUi::Warn(const std::string& text) {
  WriteErrorLine("warning: " + text);
  warnings_.push_back(text);
}

std::vector<std::string> TerminalUi::TakeWarnings() { return std::exchange(warnings_, {}); }

}  // namespace logchecker
