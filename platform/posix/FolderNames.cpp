#include "platform/posix/FolderNames.h"

#include <dirent.h>
#include <sys/stat.h>

#include <cerrno>
#include <ctime>
#include <map>
#include <unordered_map>
#include <utility>

#include "platform/StationText.h"

namespace logchecker {

namespace {

// Time stamps of folders can be this coarse: a folder that changed less than this many seconds
// before it was read may have changed again since, under the same stamp.
constexpr time_t kStampSeconds = 2;
constexpr size_t kFoldersKept = 64;

struct Stamp {
  dev_t device = 0;
  ino_t inode = 0;
  timespec modified{};
  timespec changed{};

  bool operator==(const Stamp& other) const {
    return device == other.device && inode == other.inode &&
           modified.tv_sec == other.modified.tv_sec && modified.tv_nsec == other.modified.tv_nsec &&
           changed.tv_sec == other.changed.tv_sec && changed.tv_nsec == other.changed.tv_nsec;
  }
};

struct Folder {
  Stamp stamp;
  bool settled = false;  // the stamp was old enough when the names were read
  bool listed = false;
  std::unordered_map<std::string, std::string> names;
  // Of the names that fold to the same: the next in byte order.
  std::unordered_map<std::string, std::string> others;
};

bool ReadStamp(const std::string& folder, Stamp* stamp) {
  struct stat facts {};
  if (stat(folder.c_str(), &facts) != 0 || !S_ISDIR(facts.st_mode)) return false;
  *stamp = {facts.st_dev, facts.st_ino, facts.st_mtim, facts.st_ctim};
  return true;
}

// A name with its letters in upper case, and "?" for each that the code page can't hold, as the
// station has it.
std::string Fold(const std::string& utf8) {
  std::string text;
  FromUtf8(utf8, &text);
  return ToUpper(text);
}

void AddName(std::string name, Folder* folder) {
  const std::string folded = Fold(name);
  auto [first, isNew] = folder->names.emplace(folded, name);
  if (isNew) return;
  if (name < first->second) std::swap(name, first->second);
  auto [next, isNewNext] = folder->others.emplace(folded, name);
  if (!isNewNext && name < next->second) next->second = name;
}

void ReadNames(const std::string& path, Folder* folder) {
  folder->names.clear();
  folder->others.clear();
  folder->listed = false;
  DIR* directory = opendir(path.c_str());
  if (directory == nullptr) return;
  const auto next = [directory] {
    errno = 0;
    return readdir(directory);
  };
  while (const dirent* entry = next()) AddName(entry->d_name, folder);
  folder->listed = errno == 0;
  closedir(directory);
}

bool FindLowerName(const std::string& folder, const std::string& name, std::string* found) {
  std::string text;
  FromUtf8(name, &text);
  const std::string lower = ToUtf8(ToLower(text));
  struct stat facts {};
  if (lstat((folder + "/" + lower).c_str(), &facts) != 0) return false;
  *found = lower;
  return true;
}

}  // namespace

bool FindFoldedName(const std::string& hostFolder, const std::string& name, std::string* found,
                    std::string* other) {
  static std::map<std::string, Folder> known;
  Stamp stamp;
  if (!ReadStamp(hostFolder, &stamp)) return false;
  if (known.size() >= kFoldersKept && known.count(hostFolder) == 0) known.clear();
  Folder& folder = known[hostFolder];
  if (!folder.settled || !(folder.stamp == stamp)) {
    folder.stamp = stamp;
    ReadNames(hostFolder, &folder);
    // A listing that failed is tried anew each time.
    folder.settled = folder.listed && stamp.modified.tv_sec + kStampSeconds < std::time(nullptr) &&
                     stamp.changed.tv_sec + kStampSeconds < std::time(nullptr);
  }
  const std::string folded = Fold(name);
  const auto place = folder.names.find(folded);
  if (place == folder.names.end()) {
    return !folder.listed && FindLowerName(hostFolder, name, found);
  }
  *found = place->second;
  const auto next = folder.others.find(folded);
  if (next != folder.others.end()) *other = next->second;
  return true;
}

}  // namespace logchecker
