#include "common/ui/StopProgram.h"

#include <cstdio>
#include <cstdlib>

#include "common/UserInterface.h"

namespace logchecker {

void StopProgram(const RunTimeError& error, const std::function<void()>& close) {
  static bool stopping = false;
  if (!stopping) {
    stopping = true;
    Ui().SetMousePointer(MousePointer::kDefault);
    Ui().Show({error.what(), MessageIcon::kCritical, MessageButtons::kOk, kProgramTitle});
  }
  close();
  std::fflush(nullptr);
  std::_Exit(kStopped);
}

}  // namespace logchecker
