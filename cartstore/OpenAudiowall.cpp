#include "cartstore/OpenAudiowall.h"

#include <string>

#include "cartstore/AudiowallParts.h"
#include "cartstore/BlankCart.h"
#include "common/ErrorState.h"
#include "common/FileHelpers.h"
#include "common/FolderHelpers.h"
#include "common/Lookalikes.h"
#include "common/Messages.h"
#include "common/Numbers.h"
#include "common/TextHelpers.h"
#include "common/UserInterface.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

constexpr int32_t kSuccess = 0;
constexpr int32_t kFailure = -1;

// The part keeps its number, so that no log and no other part ever gets it while this one's file
// can't be opened.
void CloseListFile(AudiowallPart& entry) {
  if (entry.HoldsNumber) Succeeded(Os().files.CloseAndKeepNumber(OwnFileNumber(entry)));
  entry.IsOpen = false;
}

// The number that a part had before CloseAudiowall may be another file's by now, so that it takes a
// free one again.
void TakeFileNumber(AudiowallPart& entry) {
  int16_t number = 0;
  entry.HoldsNumber = Succeeded(Os().files.FreeFile(&number));
  entry.FileNumber = number;
}

// Names the list files of the parts and counts the parts that have no location. A file that is open
// from another location is no longer the part's.
int32_t PrepareParts(int16_t first, int16_t last) {
  int32_t withoutLocation = 0;
  for (int16_t part = first; part <= last; ++part) {
    AudiowallPart& entry = PartEntry(part);
    if (Trim(entry.Path).empty()) {
      ++withoutLocation;
    } else {
      if (entry.FileName.empty()) entry.FileName = "Carts" + std::to_string(part) + ".lst";
      const std::string file = entry.Path + "\\" + entry.FileName;
      if (file != entry.FullFileName) CloseListFile(entry);
      entry.FullFileName = file;
    }
    entry.State = kPartUnchecked;
  }
  return withoutLocation;
}

void SetStateOfDirectory(const std::string& path, PartState state) {
  for (int16_t part = 1; part <= PartsInUse(); ++part) {
    if (PartEntry(part).Path == path) PartEntry(part).State = state;
  }
}

void CheckDirectory(const std::string& path, bool quiet) {
  if (DirectoryExists(path)) {
    SetStateOfDirectory(path, kPartUsable);
    return;
  }
  if (!quiet) {
    ShowErrorMessage("connecting part(s) of the Audio Wall because the directory: \n\n\"" +
                         std::string(Trim(path)) + "\"\n\n could not be found",
                     gErrorState.Number, false);
  }
  SetStateOfDirectory(path, kPartUnusable);
}

MessageAnswer AskToCreate(int16_t part, const std::string& file) {
  return Ui().Show({"Part " + std::to_string(part) +
                        " of the AudioWall has not been found.\nDo you wish to create it in :\n" +
                        file,
                    MessageIcon::kQuestion, MessageButtons::kYesNoCancel});
}

int32_t CapacityOf(int16_t part) {
  return part == PartsInUse() ? gNumberOfCarts - (part - 1) * kCartsOfAPart : kCartsOfAPart;
}

// A step that fails does not keep the next ones from being tried; what is left is a part whose next
// read fails.
void OpenListFile(AudiowallPart& entry, int16_t part) {
  Files& files = Os().files;
  if (entry.HoldsNumber) {
    CloseListFile(entry);
  } else {
    TakeFileNumber(entry);
  }
  const int16_t number = OwnFileNumber(entry);
  constexpr auto kLength = static_cast<int32_t>(kCartRecordLength);
  const bool opened = Succeeded(files.OpenRandom(number, entry.FullFileName, kLength));
  entry.State = kPartUsable;
  entry.IsOpen = true;
  int64_t length = 0;
  if (!opened || !Succeeded(files.LengthOfOpenFile(number, &length))) return;
  const double records = static_cast<double>(length) / static_cast<double>(kCartRecordLength);
  const int32_t capacity = CapacityOf(part);
  if (!(records < capacity)) return;
  // A file that ends inside a record is filled from the rounded record on: 1.5 records and 1 is 2.
  // A write that fails ends it, so that no gap is left that would pass for carts: the file stays
  // short, and the next opening goes on there.
  int32_t record = ToInt32(records + 1);
  while (record <= capacity && Succeeded(files.PutRecord(number, record, &gBlankCartRecord))) {
    ++record;
  }
  Succeeded(files.CloseAndKeepNumber(number));
  Succeeded(files.OpenRandom(number, entry.FullFileName, kLength));
}

bool AnyPartUsable() {
  for (int16_t part = 1; part <= PartsInUse(); ++part) {
    if (PartEntry(part).State == kPartUsable) return true;
  }
  return false;
}

}  // namespace

int32_t OpenAudiowall(int16_t part, bool quiet) {
  InitialiseBlankCart();
  ClearError();
  const int16_t first = part == 0 ? int16_t{1} : part;
  const int16_t last = part == 0 ? PartsInUse() : part;
  const int32_t withoutLocation = PrepareParts(first, last);
  if (withoutLocation > 0) {
    if (!quiet) {
      Ui().Show({std::to_string(withoutLocation) +
                     " locations of the AudioWall have not been set : Please check your "
                     "configuration.",
                 MessageIcon::kExclamation});
    }
    return kFailure;
  }
  for (int16_t n = first; n <= last; ++n) {
    AudiowallPart& entry = PartEntry(n);
    if (entry.State == kPartUnchecked) CheckDirectory(entry.Path, quiet);
    if (entry.State != kPartUsable) continue;
    if (!quiet) TellLookalike(entry.FullFileName);
    MessageAnswer answer = MessageAnswer::kYes;
    if (GetFileLength(entry.FullFileName) < 0 && !quiet) {
      answer = AskToCreate(n, entry.FullFileName);
      if (answer == MessageAnswer::kCancel) return kFailure;
    }
    if (answer == MessageAnswer::kYes) {
      OpenListFile(entry, n);
    } else {
      CloseListFile(entry);
    }
  }
  const bool usable = part == 0 ? AnyPartUsable() : PartEntry(part).State == kPartUsable;
  return usable ? kSuccess : kFailure;
}

// A file that can't be opened anew leaves its part without one, and the reads of its carts tell.
void ReopenReplacedParts() {
  for (const AudiowallPart& entry : gAudiowallParts) {
    if (entry.IsOpen) Os().files.ReopenIfReplaced(OwnFileNumber(entry), entry.FullFileName);
  }
}

void CloseAudiowall() {
  for (AudiowallPart& entry : gAudiowallParts) {
    if (entry.HoldsNumber) Os().files.Close(OwnFileNumber(entry));
    entry.HoldsNumber = false;
    entry.FileName.clear();
    entry.IsOpen = false;
    entry.State = kPartUnchecked;
  }
}

}  // namespace logchecker
