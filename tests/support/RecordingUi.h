// A user interface that answers from a script and records what it was shown.
#pragma once

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "common/UserInterface.h"

namespace logchecker {

// In force for as long as it lives. A question without an answer left in the script is cancelled.
class RecordingUi : public UserInterface {
 public:
  RecordingUi();
  ~RecordingUi() override;
  RecordingUi(const RecordingUi&) = delete;
  RecordingUi& operator=(const RecordingUi&) = delete;

  MessageAnswer Show(const Message& message) override;
  void SetMousePointer(MousePointer pointer) override;
  MousePointer CurrentMousePointer() override { return pointer; }
  void Yield() override { ++yields; }
  void ShowProgress(int32_t value, int32_t maximum) override;

  // The texts of the messages so far.
  std::vector<std::string> Texts() const;

  std::deque<MessageAnswer> answers;
  std::vector<Message> messages;
  std::vector<MousePointer> pointers;  // each that was set
  std::vector<std::pair<int32_t, int32_t>> progress;
  MousePointer pointer = MousePointer::kDefault;
  int yields = 0;

 private:
  UserInterface& before_;
};

}  // namespace logchecker
