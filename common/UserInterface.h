// What the plain code asks of a person: message boxes with their answers, the mouse pointer, a
// chance for the screen, progress. The desktop answers with windows, the headless program with
// standard error, a test with a script.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// The title of the program's message boxes.
inline constexpr char kProgramTitle[] = "Velmar KLT Log Checker";

enum class MessageIcon { kNone, kInformation, kQuestion, kExclamation, kCritical };
enum class MessageButtons { kOk, kYesNoCancel };
enum class MessageAnswer { kOk, kYes, kNo, kCancel };
enum class MousePointer { kDefault, kHourglass };

struct Message {
  std::string text;  // plain, in station text, lines ended by a line feed
  MessageIcon icon = MessageIcon::kNone;
  MessageButtons buttons = MessageButtons::kOk;
  std::string title = kProgramTitle;
};

class UserInterface {
 public:
  virtual ~UserInterface() = default;

  // Shows the box and waits for the answer.
  virtual MessageAnswer Show(const Message& message) = 0;
  virtual void SetMousePointer(MousePointer pointer) = 0;
  virtual MousePointer CurrentMousePointer() = 0;
  // Lets the screen catch up and events run, once.
  virtual void Yield() = 0;
  // How far a long job is, from 0 to `maximum`.
  virtual void ShowProgress(int32_t value, int32_t maximum) = 0;
  // How far the copying or moving of a file is, in bytes; shown where it takes its time.
  virtual void ShowFileProgress(const std::string& /*title*/, int64_t /*done*/, int64_t /*total*/) {
  }
};

// The one in force. Before any is set, nobody is there: nothing is shown, and a question is
// cancelled.
UserInterface& Ui();
// Puts another in force and returns the one that was. The caller keeps ownership. While a call to
// the system waits for another program, the one in force shows the hourglass.
UserInterface& UseUserInterface(UserInterface& userInterface);

// Shows the hourglass for as long as it lives, then the pointer that was.
class BusyPointer {
 public:
  BusyPointer();
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;
  ~BusyPointer();

 private:
  MousePointer before_;
};

}  // namespace logchecker
