#include "platform/posix/HostEntry.h"

#include <algorithm>
#include <cerrno>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/StationText.h"
#include "platform/posix/FolderNames.h"

namespace logchecker {

namespace {

constexpr size_t kWaysKept = 64;

bool Look(const std::string& path, struct stat* facts) { return lstat(path.c_str(), facts) == 0; }

// The system that the names come from drops full stops and blanks at the end of a name.
std::string NameThatIsKept(const std::string& name) {
  const size_t last = name.find_last_not_of(". ");
  return last == std::string::npos ? name : name.substr(0, last + 1);
}

// A folder where a name was looked for that isn't there as it is written.
struct Turn {
  std::string folder;
  FolderStamp stamp;
};

// How a folder was found: its path, and where that is another one than was asked for. It leads
// there again for as long as those folders have not changed.
struct Way {
  std::string folder;
  std::vector<Turn> turns;
  int64_t seenAt = 0;  // the tick at which the folders were last looked at
};

// One look for the parts of a path, one after the other.
class Walk {
 public:
  // Finds `name` in `folder`, as FindName does.
  bool Find(const std::string& folder, const std::string& name, std::string* found,
            std::string* other);
  // Finds the parts of `path`, as WithFoundNames does.
  std::string FindAll(const std::string& path, HostLookalike* lookalike);

  // Whether all parts were found.
  bool Arrived() const { return arrived_; }
  // Whether what was found stays so until one of the turns changes.
  bool IsLasting() const { return lasting_; }
  const std::vector<Turn>& Turns() const { return turns_; }

 private:
  bool arrived_ = true;
  bool lasting_ = true;
  std::vector<Turn> turns_;
};

bool Walk::Find(const std::string& folder, const std::string& name, std::string* found,
                std::string* other) {
  struct stat facts {};
  other->clear();
  if (Look(folder + "/" + name, &facts)) {
    *found = name;
    return true;
  }
  // Only a name that isn't there comes together with a change of the folder.
  lasting_ = lasting_ && errno == ENOENT;
  const FolderNames* names = NamesIn(folder);
  lasting_ = lasting_ && names != nullptr && names->IsSettled();
  if (names != nullptr) {
    if (lasting_) turns_.push_back({folder, names->Stamp()});
    if (names->Find(name, found, other)) return true;
    if (!names->IsListed()) {
      std::string text;
      FromUtf8(name, &text);
      *found = ToUtf8(ToLower(text));
      if (Look(folder + "/" + *found, &facts)) return true;
    }
  }
  const std::string kept = NameThatIsKept(name);
  return kept != name && Find(folder, kept, found, other);
}

std::string Walk::FindAll(const std::string& path, HostLookalike* lookalike) {
  struct stat facts {};
  if (path.empty() || Look(path, &facts)) return path;
  std::string result = path[0] == '/' ? "/" : "";
  size_t begin = path.find_first_not_of('/');
  while (begin != std::string::npos) {
    const size_t end = std::min(path.find('/', begin), path.size());
    const std::string name = path.substr(begin, end - begin);
    std::string found;
    std::string other;
    arrived_ = arrived_ && Find(result.empty() ? "." : result, name, &found, &other);
    if (!other.empty() && lookalike->other.empty()) *lookalike = {result + found, result + other};
    result += arrived_ ? found : NameThatIsKept(name);
    if (end < path.size()) result += '/';
    begin = path.find_first_not_of('/', end);
  }
  return result;
}

// The ways that were found, by the folder that was asked for.
std::unordered_map<std::string, Way>& KnownWays() {
  static std::unordered_map<std::string, Way> known;
  return known;
}

// The folders of its turns are looked at as FolderNames::Stands has it.
const Way* KnownWayTo(const std::string& folder) {
  const auto place = KnownWays().find(folder);
  if (place == KnownWays().end()) return nullptr;
  Way& way = place->second;
  if (way.turns.empty()) return &way;
  const int64_t tick = gFolderCalls.tick();
  const auto rests = [](const Turn& turn) { return HasRested(turn.stamp); };
  if (tick == way.seenAt && std::all_of(way.turns.begin(), way.turns.end(), rests)) return &way;
  const auto stands = [](const Turn& turn) { return HasStamp(turn.folder, turn.stamp); };
  if (!std::all_of(way.turns.begin(), way.turns.end(), stands)) return nullptr;
  way.seenAt = tick;
  return &way;
}

// Finds `name` at the end of a known way. False when the way does not lead there any more, or the
// name must be tried in other ways too.
bool FindAtItsEnd(const Way& way, const std::string& name, HostEntry* entry) {
  entry->path = way.folder + "/" + name;
  const bool isKept = NameThatIsKept(name) == name;
  if (isKept && IsSurelyMissing(way.folder, name)) {
    entry->isMissing = true;
    return true;
  }
  if (Look(entry->path, &entry->facts)) return true;
  const bool isAbsent = errno == ENOENT;
  const FolderNames* names = NamesIn(way.folder);
  if (names == nullptr || !names->IsListed()) return false;
  std::string found;
  std::string other;
  if (names->Find(name, &found, &other)) {
    entry->path = way.folder + "/" + found;
    return true;
  }
  entry->isMissing = isAbsent;
  return isKept;
}

// Finds `name` in `folder` from the first part on, and keeps the way.
std::string FindFromTheStart(const std::string& folder, const std::string& name) {
  Walk walk;
  HostLookalike ignored;
  const std::string path = walk.FindAll(folder, &ignored);
  if (walk.Arrived() && walk.IsLasting()) {
    if (KnownWays().size() >= kWaysKept) KnownWays().clear();
    KnownWays()[folder] = {path, walk.Turns(), 0};
  } else {
    KnownWays().erase(folder);
  }
  std::string found;
  std::string other;
  const bool isThere = walk.Arrived() && FindName(path, name, &found, &other);
  return path + "/" + (isThere ? found : NameThatIsKept(name));
}

}  // namespace

std::string WithFoundNames(const std::string& path, HostLookalike* lookalike) {
  return Walk().FindAll(path, lookalike);
}

bool FindName(const std::string& hostFolder, const std::string& name, std::string* found,
              std::string* other) {
  return Walk().Find(hostFolder.empty() ? "." : hostFolder, name, found, other);
}

HostEntry FindHostEntry(const std::string& path) {
  HostEntry entry;
  const size_t slash = path.find_last_of('/');
  const bool isPlain = slash != std::string::npos && slash > 0 && slash + 1 < path.size() &&
                       path.find("//") == std::string::npos;
  if (!isPlain) {
    HostLookalike ignored;
    entry.path = WithFoundNames(path, &ignored);
    return entry;
  }
  const std::string folder = path.substr(0, slash);
  const std::string name = path.substr(slash + 1);
  const Way* way = KnownWayTo(folder);
  if (way != nullptr && FindAtItsEnd(*way, name, &entry)) return entry;
  entry = HostEntry();
  entry.path = FindFromTheStart(folder, name);
  return entry;
}

}  // namespace logchecker
