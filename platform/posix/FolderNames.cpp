#include "platform/posix/FolderNames.h"

#include <dirent.h>
#include <linux/magic.h>
#include <sys/statfs.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr int64_t kNanoseconds = 1'000'000'000;

}  // namespace

int64_t TickOfStamps() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME_COARSE, &now);
  return now.tv_sec * kNanoseconds + now.tv_nsec;
}

FolderCalls gFolderCalls;

namespace {

// Time stamps of folders can be this coarse: a folder that changed less than this many seconds
// before it was read may have changed again since, under the same stamp.
constexpr time_t kStampSeconds = 2;
constexpr size_t kFoldersKept = 64;

bool ReadStamp(const std::string& folder, FolderStamp* stamp) {
  struct stat facts {};
  if (gFolderCalls.stat(folder.c_str(), &facts) != 0 || !S_ISDIR(facts.st_mode)) return false;
  *stamp = {facts.st_dev, facts.st_ino, facts.st_mtim, facts.st_ctim};
  return true;
}

// Whether a change at this moment and any later one have stamps of their own: `tick` is of a time
// when no more changes could come with this one. A stamp in whole seconds may be a coarse one.
bool IsPast(const timespec& stamp, int64_t tick) {
  return stamp.tv_nsec != 0 && stamp.tv_sec * kNanoseconds + stamp.tv_nsec < tick;
}

// File systems of this machine that have each name in their listings and no other names.
constexpr std::array<decltype(statfs::f_type), 6> kPlainFileSystems = {
    EXT4_SUPER_MAGIC, XFS_SUPER_MAGIC,       BTRFS_SUPER_MAGIC,
    F2FS_SUPER_MAGIC, OVERLAYFS_SUPER_MAGIC, TMPFS_MAGIC};

bool IsOnPlainFileSystem(DIR* directory) {
  struct statfs facts {};
  return fstatfs(dirfd(directory), &facts) == 0 &&
         std::find(kPlainFileSystems.begin(), kPlainFileSystems.end(), facts.f_type) !=
             kPlainFileSystems.end();
}

// A name with its letters in upper case, and "?" for each that the code page can't hold, as the
// station has it.
std::string Fold(const std::string& utf8) {
  std::string text;
  FromUtf8(utf8, &text);
  return ToUpper(text);
}

std::unordered_map<std::string, FolderNames>& KnownFolders() {
  static std::unordered_map<std::string, FolderNames> known;
  return known;
}

}  // namespace

bool FolderStamp::operator==(const FolderStamp& other) const {
  return device == other.device && inode == other.inode &&
         modified.tv_sec == other.modified.tv_sec && modified.tv_nsec == other.modified.tv_nsec &&
         changed.tv_sec == other.changed.tv_sec && changed.tv_nsec == other.changed.tv_nsec;
}

void FolderNames::Add(std::string name) {
  const std::string folded = Fold(name);
  auto [first, isNew] = names_.emplace(folded, name);
  if (isNew) return;
  if (name < first->second) std::swap(name, first->second);
  auto [next, isNewNext] = others_.emplace(folded, name);
  if (!isNewNext && name < next->second) next->second = name;
}

void FolderNames::Read(const std::string& hostFolder, const FolderStamp& stamp) {
  // The time before the names are read: what changes while they are may be in them or not.
  const time_t now = gFolderCalls.time(nullptr);
  const int64_t tick = gFolderCalls.tick();
  *this = FolderNames();
  stamp_ = stamp;
  DIR* directory = opendir(hostFolder.c_str());
  if (directory == nullptr) return;
  const auto next = [directory] {
    errno = 0;
    return readdir(directory);
  };
  while (const dirent* entry = next()) Add(entry->d_name);
  // A listing that failed is tried anew each time.
  listed_ = errno == 0;
  plain_ = IsOnPlainFileSystem(directory);
  closedir(directory);
  const bool isLongAgo =
      stamp.modified.tv_sec + kStampSeconds < now && stamp.changed.tv_sec + kStampSeconds < now;
  // The stamps of this machine's own file systems come from the clock of the ticks.
  const bool isPast = plain_ && IsPast(stamp.modified, tick) && IsPast(stamp.changed, tick);
  settled_ = listed_ && (isLongAgo || isPast);
}

bool FolderNames::Find(const std::string& name, std::string* found, std::string* other) const {
  const std::string folded = Fold(name);
  const auto place = names_.find(folded);
  if (place == names_.end()) return false;
  *found = place->second;
  const auto next = others_.find(folded);
  if (next != others_.end()) *other = next->second;
  return true;
}

bool FolderNames::Has(const std::string& name) const { return names_.count(Fold(name)) != 0; }

// The tick before the look: what changes while it is made may be seen or not.
bool FolderNames::Stands(const std::string& hostFolder) {
  const int64_t tick = gFolderCalls.tick();
  if (tick == seenAt_) return true;
  if (!HasStamp(hostFolder, stamp_)) return false;
  seenAt_ = tick;
  return true;
}

const FolderNames* NamesIn(const std::string& hostFolder) {
  auto& known = KnownFolders();
  FolderStamp stamp;
  if (!ReadStamp(hostFolder, &stamp)) return nullptr;
  const auto place = known.find(hostFolder);
  if (place != known.end() && place->second.IsSettled() && place->second.Stamp() == stamp) {
    return &place->second;
  }
  if (place == known.end() && known.size() >= kFoldersKept) known.clear();
  FolderNames& names = known[hostFolder];
  names.Read(hostFolder, stamp);
  return &names;
}

bool HasStamp(const std::string& hostFolder, const FolderStamp& stamp) {
  FolderStamp now;
  return ReadStamp(hostFolder, &now) && now == stamp;
}

// A folder that can't be searched has no stamp by its "." either.
bool IsSurelyMissing(const std::string& hostFolder, const std::string& name) {
  const auto place = KnownFolders().find(hostFolder);
  if (place == KnownFolders().end()) return false;
  FolderNames& names = place->second;
  return names.IsWhole() && !names.Has(name) && names.Stands(hostFolder + "/.");
}

}  // namespace logchecker
