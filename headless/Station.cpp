#include "headless/Station.h"

#include <set>

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/Dates.h"
#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "common/GeneralSettings.h"
#include "common/Lookalikes.h"
#include "common/PathText.h"
#include "common/UnreadableSettings.h"
#include "platform/Platform.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/LoadLogs.h"

namespace logchecker {

namespace {

void RequireReadable(const std::string& file, TerminalUi& ui) {
  TellLookalike(PathOfSettings(file));
  WriteWarnings(ui);
  const std::string reason = WhyUnreadable(file);
  if (!reason.empty()) throw Trouble(reason);
}

void RequireSettings(TerminalUi& ui) {
  RequireReadable(kDefaultSettingsFile, ui);
  const std::string file = GetWindowsFolder() + "\\" + kDefaultSettingsFile;
  if (!(GetFileLength(file) > 0))
    throw Trouble("there are no settings: " + ShownPath(file) + " is missing or empty");
  if (ReadingError(file) != kNoError)
    throw Trouble("the settings can't be read: " + ShownPath(file));
}

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  if (from.empty() || from == to) return;
  for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
}

std::string Joined(const std::vector<std::string>& texts) {
  std::string line;
  for (const std::string& text : texts) line += (line.empty() ? "" : "; ") + text;
  return line;
}

}  // namespace

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

void ReadStationSettings(const Options& options, TerminalUi& ui) {
  SetCommandLine(options.wholeLine);
  if (!options.settingsFolder.empty() && !Os().system.SetWindowsFolder(options.settingsFolder)) {
    throw Trouble("the settings folder's name has characters that the code page can't hold");
  }
  RequireSettings(ui);
  LoadGeneralSettings();
  RequireReadable(gSettingsFile, ui);
}

int32_t FirstDay(const Options& options) { return options.day.value_or(Today() + 1); }

std::vector<std::string> ShownMessages(std::vector<std::string> messages) {
  for (std::string& message : messages) {
    for (const AudiowallPart& part : gAudiowallParts) {
      ReplaceAll(message, part.FullFileName, ShownPath(part.FullFileName));
      ReplaceAll(message, part.Path, ShownPath(part.Path));
    }
  }
  return messages;
}

void WriteWarnings(TerminalUi& ui) {
  for (const std::string& message : ShownMessages(ui.TakeMessages())) ui.Warn(message);
}

void OpenStore(TerminalUi& ui) {
  RequireReadable(kFamilySettingsFile, ui);
  LoadAudioSettings(kFamilySettingsFile, "");
  RequireReadable(AudiowallSettingsFile(), ui);
  if (OpenAudiowall(0, false) == 0) {
    WriteWarnings(ui);
    return;
  }
  const std::vector<std::string> messages = ShownMessages(ui.TakeMessages());
  const std::string reason = messages.empty() ? "NoCarts in " + ShownPath(AudiowallSettingsFile()) +
                                                    " leaves no part in use"
                                              : Joined(messages);
  throw Trouble("the cart store of " + ShownPath(GetWindowsFolder() + "\\" + kFamilySettingsFile) +
                " can't be opened: " + reason);
}

// A part that once had its file is looked at even where a read has failed since: the next cart of
// it would try again.
std::vector<std::string> WarnOfUnreadableParts() {
  static std::set<int16_t> told;
  std::vector<std::string> warnings;
  for (int16_t part = 1; part <= PartsInUse(); ++part) {
    const AudiowallPart& entry = PartEntry(part);
    CartRecord record{};
    int32_t error = kNoError;
    if (entry.IsOpen) error = Os().files.GetRecord(OwnFileNumber(entry), 1, &record);
    if (error == kNoError) {
      told.erase(part);
      continue;
    }
    // Without an open file that number says nothing.
    if (error == kBadFileNumber) error = ReadingError(entry.FullFileName);
    warnings.push_back("part " + std::to_string(part) + " of the cart store can't be read: " +
                       ShownPath(entry.FullFileName) + ": " + ErrorText(error));
    if (told.insert(part).second) WriteErrorLine("warning: " + warnings.back());
  }
  return warnings;
}

void CloseStation() {
  CloseAudiowall();
  CloseAllFiles();
}

}  // namespace logchecker
