#include "headless/Station.h"

#include <set>

#include "cartstore/AudioSettings.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "common/GeneralSettings.h"
#include "common/Lookalikes.h"
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

void RequireReadable(const std::string& file, TerminalUi& ui) {
  TellLookalike(PathOfSettings(file));
  ui.WriteWarnings();
  const std::string reason = WhyUnreadable(file);
  if (!reason.empty()) throw Trouble(reason);
}

void RequireSettings(TerminalUi& ui) {
  RequireReadable(kDefaultSettingsFile, ui);
  const std::string file = GetWindowsFolder() + "\\" + kDefaultSettingsFile;
  if (!(GetFileLength(file) > 0))
    throw Trouble("there are no settings: " + file + " is missing or empty");
  if (ReadingError(file) != kNoError) throw Trouble("the settings can't be read: " + file);
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string line;
  for (const std::string& text : texts) line += (line.empty() ? "" : "; ") + text;
  return line;
}

}  // namespace

void ReadStationSettings(const Options& options, TerminalUi& ui) {
  SetCommandLine(options.wholeLine);
  if (!options.settingsFolder.empty() && !Os().system.SetWindowsFolder(options.settingsFolder)) {
    throw Trouble("the settings folder's name has characters that the code page can't hold");
  }
  RequireSettings(ui);
  LoadGeneralSettings();
  RequireReadable(gSettingsFile, ui);
}

void OpenStore(TerminalUi& ui) {
  RequireReadable(kFamilySettingsFile, ui);
  LoadAudioSettings(kFamilySettingsFile, "");
  RequireReadable(AudiowallSettingsFile(), ui);
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

// A part that once had its file is looked at even where a read has failed since: the next cart of
// it would try again.
void WarnOfUnreadableParts() {
  static std::set<int16_t> told;
  for (int16_t part = 1; part <= PartsInUse(); ++part) {
    const AudiowallPart& entry = PartEntry(part);
    CartRecord record{};
    int32_t error = kNoError;
    if (entry.IsOpen) error = Os().files.GetRecord(OwnFileNumber(entry), 1, &record);
    if (error == kNoError) {
      told.erase(part);
      continue;
    }
    if (!told.insert(part).second) continue;
    // Without an open file that number says nothing.
    if (error == kBadFileNumber) error = ReadingError(entry.FullFileName);
    WriteErrorLine("warning: part " + std::to_string(part) + " of the cart store can't be read: " +
                   entry.FullFileName + ": " + ErrorText(error));
  }
}

void CloseStation() {
  CloseAudiowall();
  CloseAllFiles();
}

}  // namespace logchecker
