// The files that a check asked for, and whether they are still as it found them.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/Directories.h"
#include "platform/FileStamp.h"

namespace logchecker {

// Seconds on a clock that never goes back.
using SecondsClock = std::function<double()>;

// What to watch is what was asked for, so that nothing which a check reads can be left out: files
// that are not there yet, and the ones that would be found instead of them, are asked for too.
// Paths are station paths.
class WatchedFiles {
 public:
  // A change counts when it has stood still for `interval` seconds.
  WatchedFiles(SecondsClock clock, double interval);

  // A check begins, right behind a Look; what it asks for is told by the calls up to EndCheck.
  // What was asked for by the last check alone is forgotten then.
  void BeginCheck();
  // Around each question of the check: before it is asked, and behind the answer, which must be
  // that of the file as it was noted. One that is moved away and back leaves no other trace.
  void Note(const std::string& path);
  void Confirm(const std::string& path);
  // The answer to the question whether it could be two.
  void NoteLookalike(const std::string& path, const Lookalike& lookalike);
  // A call for it failed for another reason than that it is missing.
  void NoteRefused(const std::string& path);
  // The check itself wrote to it.
  void NoteWritten(const std::string& path);
  void EndCheck();

  // Looks at each of them.
  void Look();

  // Whether another check is due: something is no longer as the last check found it, or may have
  // changed unseen since, and all such has stood still for the interval. What goes on changing
  // holds up the rest for a few intervals alone.
  bool IsDue() const;

  // What Look found since the last call, in order: folders that hold what is watched.
  struct FolderEvent {
    std::string folder;  // the topmost that is gone
    bool isGone = false;
  };
  std::vector<FolderEvent> TakeFolderEvents();

  // All that is watched, in no order.
  std::vector<std::string> Paths() const;

 private:
  struct Seen {
    FileStamp stamp;
    Lookalike lookalike;
    int32_t readingError = 0;

    bool operator==(const Seen& other) const;
  };
  struct Item {
    Seen now;
    double since = 0;     // when `now` was first seen
    Seen checked;         // as it was before the last check read it
    bool isSure = false;  // it was read so, and no write since can hide behind the same time stamp
    bool asked = false;   // by this check, and so on
    bool asksLookalike = false;
    bool refused = false;
    bool refusedBefore = false;  // by the check before the last
    bool written = false;
    bool writtenBefore = false;

    bool NeedsCheck() const { return !isSure || !(now == checked); }
  };

  static Seen SeenAt(const std::string& path, const Item& item);
  void TakeOwnWrite(const std::string& path, Item& item);
  void ListFolders();
  void LookAtFolders();

  SecondsClock clock_;
  double interval_;
  double checkBegan_ = 0;
  double lookBegan_ = 0;
  std::unordered_map<std::string, Item> items_;
  std::map<std::string, bool> folders_;  // whether each could be reached
  std::set<std::string> gone_;           // the topmost ones that are gone
  std::vector<FolderEvent> folderEvents_;
};

}  // namespace logchecker
