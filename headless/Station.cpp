#include "headless/Station.h"

#include "cartstore/AudioSettings.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "common/GeneralSettings.h"
#include "common/UnreadableSettings.h"
#include "platform/Platform.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/LoadLogs.h"

namespace logchecker {

namespace {

// Why the file can't be read, as an error number.
int32_t ReadingError(const std::string& path) {
  Files& files = Os().files;
  int16_t file = 0;
  int32_t error = files.FreeFile(&file);
  if (error == kNoError) error = files.OpenForInput(file, path);
  bool atEnd = false;
  if (error == kNoError) error = files.EndOfFile(file, &atEnd);
  files.Close(file);
  return error;
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
  if (ReadingError(file) != kNoError) throw Trouble("the settings can't be read: " + file);
}

// The opening takes a list file that can't be read as it is, and its carts would pass for carts
// without audio.
void WarnOfUnreadableParts() {
  for (int16_t part = 1; part <= PartsInUse(); ++part) {
    const AudiowallPart& entry = PartEntry(part);
    if (entry.State != kPartUsable) continue;
    CartRecord record{};
    int32_t error = Os().files.GetRecord(OwnFileNumber(entry), 1, &record);
    if (error == kNoError) continue;
    // Without an open file that number says nothing.
    if (error == kBadFileNumber) error = ReadingError(entry.FullFileName);
    WriteErrorLine("warning: part " + std::to_string(part) + " of the cart store can't be read: " +
                   entry.FullFileName + ": " + ErrorText(error));
  }
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
  WarnOfUnreadableParts();
}

void CloseStation() {
  CloseAudiowall();
  CloseAllFiles();
}

}  // namespace logchecker
