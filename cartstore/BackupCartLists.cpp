#include "cartstore/BackupCartLists.h"

#include <string>

#include "cartstore/AudiowallParts.h"
#include "common/DatePicture.h"
#include "common/Dates.h"
#include "common/FileHelpers.h"
#include "common/FolderHelpers.h"
#include "common/SystemHelpers.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

bool MakeFolder(const std::string& path) {
  return DirectoryExists(path) || Os().directories.MakeDirectory(path) == kNoError;
}

// False when an error or a failed copy ends the backup.
bool BackupPart(int16_t part, bool force) {
  const std::string& path = PartEntry(part).Path;
  const std::string fileName = "\\Carts" + std::to_string(part) + ".LST";
  std::string found;
  if (Os().directories.FirstName(path + fileName, false, &found) != kNoError) return false;
  if (found.empty()) return true;
  const std::string backups = path + "\\Backups";
  const std::string dated = backups + "\\" + FormatDate(Today(), "yyyy-mm-dd").value_or("");
  if (!MakeFolder(backups) || !MakeFolder(dated)) return false;
  if (GetFileLength(backups + fileName) >= 0 && !force) return true;
  return ShellFileOperation(path + fileName, dated,
                            "Backing up Audio Wall lists - Part " + std::to_string(part), 0, false,
                            false) == 0;
}

}  // namespace

void BackupCartLists(bool force) {
  for (int16_t part = 1; part <= kAudiowallParts; ++part) {
    if (!PartEntry(part).Path.empty() && !BackupPart(part, force)) return;
  }
}

}  // namespace logchecker
