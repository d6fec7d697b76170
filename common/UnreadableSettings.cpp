#include "common/UnreadableSettings.h"

#include "common/FileHelpers.h"
#include "common/Lookalikes.h"
#include "common/PathText.h"
#include "common/UserInterface.h"
#include "platform/Platform.h"
#include "platform/StationText.h"

namespace logchecker {

std::string PathOfSettings(const std::string& file) {
  const bool bare = file.find_first_of("\\/:") == std::string::npos;
  return bare ? GetWindowsFolder() + "\\" + file : file;
}

std::string WhyUnreadable(const std::string& file) {
  const std::string path = ShownPath(PathOfSettings(file));
  switch (Os().profiles.StateOf(file)) {
    case ProfileState::kNoFile:
      return "there are no settings: " + path + " is a directory, a pipe or a device";
    case ProfileState::kTooLarge:
      return "the settings can't be read: " + path + " is larger than 16 MiB";
    case ProfileState::kRefused:
      return "the settings can't be read: " + path;
    default:
      return "";
  }
}

bool TellIfUnreadable(const std::string& file) {
  TellLookalike(PathOfSettings(file));
  const std::string reason = WhyUnreadable(file);
  if (reason.empty()) return false;
  const std::string sentence = ToUpper(reason.substr(0, 1)) + reason.substr(1);
  Ui().Show({sentence, MessageIcon::kCritical, MessageButtons::kOk, kProgramTitle});
  return true;
}

}  // namespace logchecker
