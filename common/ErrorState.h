// The current error state, and the error that stops the program.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

#include "platform/ErrorNumbers.h"  // IWYU pragma: export

namespace logchecker {

// What the last failing step left behind. Steps that go on after a failure look here; a routine
// that reads it clears it when it begins.
struct ErrorState {
  int32_t Number = 0;
  std::string Description;
};

extern ErrorState gErrorState;

inline void ClearError() {
  if (gErrorState.Number != kNoError) gErrorState = ErrorState();
}

void SetError(int32_t error);

// Takes the result of a platform call into the error state when it is a failure. True on success.
inline bool Succeeded(int32_t error) {
  if (error != kNoError) SetError(error);
  return error == kNoError;
}

// The system's text for an error number; empty for a number that has none.
std::string ErrorText(int32_t number);

// An error that nothing catches: the program says what happened and ends. It never passes through
// the event loop of a user interface.
class RunTimeError : public std::exception {
 public:
  // `concerning` names the split, file or key that the error is about.
  RunTimeError(int32_t number, std::string concerning);

  int32_t number() const { return number_; }
  const std::string& concerning() const { return concerning_; }
  // "Run-time error 52: Bad file name or number (Split 3, C:\LOGS\270115.LOG)", in station text.
  const char* what() const noexcept override { return text_.c_str(); }

 private:
  int32_t number_;
  std::string concerning_;
  std::string text_;
};

}  // namespace logchecker
