#include "common/Messages.h"

#include "common/ErrorState.h"
#include "common/TextHelpers.h"
#include "common/UserInterface.h"

namespace logchecker {

std::string ShowErrorMessage(const std::string& action, int32_t errorNumber, bool quiet) {
  const MousePointer pointer = Ui().CurrentMousePointer();
  Ui().SetMousePointer(MousePointer::kDefault);
  std::string message = "There was a problem " + std::string(Trim(action));
  if (errorNumber != 0) {
    const std::string text = ErrorText(errorNumber);
    std::string description(Trim(text));
    if (description.empty() && gErrorState.Number == errorNumber) {
      description = gErrorState.Description;
    }
    message += " and the error's description was reported as : \n\n\"" + description + "\" (" +
               std::to_string(gErrorState.Number) + ")";
  }
  if (!quiet) Ui().Show({message, MessageIcon::kExclamation});
  Ui().SetMousePointer(pointer);
  return message;
}

}  // namespace logchecker
