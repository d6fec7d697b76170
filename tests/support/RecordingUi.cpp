#include "tests/support/RecordingUi.h"

namespace logchecker {

RecordingUi::RecordingUi() : before_(UseUserInterface(*this)) {}

RecordingUi::~RecordingUi() { UseUserInterface(before_); }

MessageAnswer RecordingUi::Show(const Message& message) {
  messages.push_back(message);
  if (message.buttons == MessageButtons::kOk) return MessageAnswer::kOk;
  if (answers.empty()) return MessageAnswer::kCancel;
  const MessageAnswer answer = answers.front();
  answers.pop_front();
  return answer;
}

void RecordingUi::SetMousePointer(MousePointer newPointer) {
  pointer = newPointer;
  pointers.push_back(newPointer);
}

void RecordingUi::ShowProgress(int32_t value, int32_t maximum) {
  progress.emplace_back(value, maximum);
}

std::vector<std::string> RecordingUi::Texts() const {
  std::vector<std::string> texts;
  for (const Message& message : messages) texts.push_back(message.text);
  return texts;
}

}  // namespace logchecker
