#include "headless/Station.h"

#include "cartstore/AudioSettings.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "common/FileHelpers.h"
#include "common/GeneralSettings.h"
#include "common/UnreadableSettings.h"
#include "platform/Platform.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/LoadLogs.h"

namespace logchecker {

namespace {

bool CanBeRead(const std::string& path) {
  Files& files = Os().files;
  int16_t file = 0;
  bool readable = files.FreeFile(&file) == kNoError && files.OpenForInput(file, path) == kNoError;
  bool atEnd = false;
  readable = readable && files.EndOfFile(file, &atEnd) == kNoError;
  files.Close(file);
  return readable;
}

void RequireReadable(const std::string& file) {
  const std::string reason = WhyUnreadable(file);
  if (!reason.empty()) throw Trouble(reason);
}

void RequireSettings() {
  RequireReadable(kDefaultSettingsFile);
  const std::string file = GetWindowsFolder() + "\\" + kDefaultSettingsFile;
  if (!(GetFileLength(file) > 0))
    throw Trouble("there are no settings: " + file + " is missing or empty");
  if (!CanBeRead(file)) throw Trouble("the settings can't be read: " + file);
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string line;
  for (const std::string& text : texts) line += (line.empty() ? "" : "; ") + text;
  return line;
}

}  // namespace

void ReadStationSettings(const Options& options) {
  SetCommandLine(options.wholeLine);
  if (!options.settingsFolder.empty() && !Os().system.SetWindowsFolder(options.settingsFolder)) {
    throw Trouble("the settings folder's name has characters that the code page can't hold");
  }
  RequireSettings();
  LoadGeneralSettings();
  RequireReadable(gSettingsFile);
}

void OpenStore(TerminalUi& ui) {
  RequireReadable(kFamilySettingsFile);
  LoadAudioSettings(kFamilySettingsFile, "");
  RequireReadable(AudiowallSettingsFile());
  const bool opened = OpenAudiowall(0, false) == 0;
  const std::vector<std::string> messages = ui.TakeMessages();
  if (!opened) {
    const std::string reason =
        messages.empty() ? "NoCarts in " + AudiowallSettingsFile() + " leaves no part in use"
                         : Joined(messages);
    throw Trouble("the cart store of " + GetWindowsFolder() + "\\" + kFamilySettingsFile +
                  " can't be opened: " + reason);
  }
  for (const std::string& message : messages) WriteErrorLine("warning: " + message);
}

void CloseStation() {
  CloseAudiowall();
  CloseAllFiles();
}

}  // namespace logchecker
