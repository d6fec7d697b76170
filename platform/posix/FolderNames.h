// The names in a folder, without regard to letter case.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <ctime>
#include <string>
#include <unordered_map>

namespace logchecker {

// The tick of the clock that this machine's file systems take their stamps from, in nanoseconds.
int64_t TickOfStamps();

// The calls that say when a folder changed, and what time it is. A test can put others here: a
// share whose stamps are coarser than those of this machine, or a later day.
struct FolderCalls {
  int (*stat)(const char* path, struct stat* facts) = ::stat;
  time_t (*time)(time_t*) = ::time;
  int64_t (*tick)() = TickOfStamps;
};
extern FolderCalls gFolderCalls;

// One state of a folder. Another folder in its place and each name that comes or goes make another
// stamp, but for changes within the same tick of the file system's clock (see IsSettled).
struct FolderStamp {
  dev_t device = 0;
  ino_t inode = 0;
  timespec modified{};
  timespec changed{};

  bool operator==(const FolderStamp& other) const;
};

// The names that a folder had when they were read.
class FolderNames {
 public:
  // Reads the names in the folder that had this stamp just before.
  void Read(const std::string& hostFolder, const FolderStamp& stamp);

  const FolderStamp& Stamp() const { return stamp_; }
  // Whether all names could be read: a folder may be one to enter and not to list.
  bool IsListed() const { return listed_; }
  // Whether the folder has these names, all of them, for as long as it has this stamp.
  bool IsSettled() const { return settled_; }
  // Whether in addition nothing can be there that is not among them. A share may know a file by a
  // short name too, or mount one when it is asked for.
  bool IsWhole() const { return settled_ && plain_; }

  // The name that equals `name` but for letter case, with "?" in `name` for a character that the
  // code page can't hold; of several the first in byte order, with the next in `other`. False for
  // none.
  bool Find(const std::string& name, std::string* found, std::string* other) const;
  // Whether there is one.
  bool Has(const std::string& name) const;
  // Whether the folder still has its stamp. One that has rested is looked at once a tick.
  bool Stands(const std::string& hostFolder);

 private:
  void Add(std::string name);

  FolderStamp stamp_;
  bool listed_ = false;
  bool settled_ = false;
  bool plain_ = false;
  int64_t seenAt_ = 0;  // the tick at which it last had its stamp
  std::unordered_map<std::string, std::string> names_;
  // Of the names that fold to the same: the next in byte order.
  std::unordered_map<std::string, std::string> others_;
};

// The names in a folder, nullptr where there is none. They are read once and kept for as long as
// the folder has not changed, since a store can hold a file for each of its carts. Good until the
// next call.
const FolderNames* NamesIn(const std::string& hostFolder);

// Whether a folder is there and has this stamp.
bool HasStamp(const std::string& hostFolder, const FolderStamp& stamp);

// Whether nothing has changed for some seconds. Such a folder need not be looked at more than once
// a tick; one that is being written is looked at each time.
bool HasRested(const FolderStamp& stamp);

// Whether it is certain, at the price of a look at the folder, that nothing there bears `name` in
// any letter case. False says nothing.
bool IsSurelyMissing(const std::string& hostFolder, const std::string& name);

}  // namespace logchecker
