#include "platform/posix/FolderNames.h"

#include <dirent.h>
#include <sys/stat.h>

#include <ctime>
#include <map>
#include <unordered_map>

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
  std::unordered_map<std::string, std::string> names;
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

void ReadNames(const std::string& path, Folder* folder) {
  folder->names.clear();
  DIR* directory = opendir(path.c_str());
  if (directory == nullptr) return;
  while (const dirent* entry = readdir(directory)) {
    const std::string name = entry->d_name;
    auto [place, isNew] = folder->names.emplace(Fold(name), name);
    if (!isNew && name < place->second) place->second = name;
  }
  closedir(directory);
}

}  // namespace

bool FindFoldedName(const std::string& hostFolder, const std::string& name, std::string* found) {
  static std::map<std::string, Folder> known;
  Stamp stamp;
  if (!ReadStamp(hostFolder, &stamp)) return false;
  if (known.size() >= kFoldersKept && known.count(hostFolder) == 0) known.clear();
  Folder& folder = known[hostFolder];
  if (!folder.settled || !(folder.stamp == stamp)) {
    folder.stamp = stamp;
    folder.settled = stamp.modified.tv_sec + kStampSeconds < std::time(nullptr) &&
                     stamp.changed.tv_sec + kStampSeconds < std::time(nullptr);
    ReadNames(hostFolder, &folder);
  }
  const auto place = folder.names.find(Fold(name));
  if (place == folder.names.end()) return false;
  *found = place->second;
  return true;
}

}  // namespace logchecker
