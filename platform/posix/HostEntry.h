// The entry of the host's file system that a path in any letter case means.
#pragma once

#include <sys/stat.h>

#include <string>

namespace logchecker {

// Two host paths whose last parts differ only in letter case.
struct HostLookalike {
  std::string taken;
  std::string other;  // empty when there is none
};

// `path`, in UTF-8 and with "/" throughout, with the name of each part as it is called there. Each
// part is found exactly if it exists so, else without regard to letter case. In a folder that can't
// be listed it is looked for as it is written and in lower case. A name that ends in full stops or
// blanks and isn't there loses them. Parts that do not exist stay as they are written otherwise.
// The first part that could stand for several entries is put down in `lookalike`.
std::string WithFoundNames(const std::string& path, HostLookalike* lookalike);

// `name` as it is called in the folder `hostFolder`, by the same rule; false when nothing there
// bears it. Of several that differ only in case the first in byte order is taken, and `other` is
// the next.
bool FindName(const std::string& hostFolder, const std::string& name, std::string* found,
              std::string* other);

struct HostEntry {
  std::string path;
  // Its folder is there, and has no name that would fit.
  bool isMissing = false;
  // What the system says of the entry itself, links not followed; st_mode is 0 where it was not
  // asked.
  struct stat facts {};
};

// The same path as from WithFoundNames, with what was learnt on the way. The way to a folder is
// kept for as long as it can't have changed, so that a store that is read cart by cart is not
// looked for from the root each time.
HostEntry FindHostEntry(const std::string& path);

}  // namespace logchecker
