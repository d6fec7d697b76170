#include "headless/WatchedFiles.h"

#include <algorithm>
#include <utility>

#include "headless/Station.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

// A file that never stands still must not keep the others from being checked.
constexpr double kMostIntervalsHeldUp = 6;

bool Same(const Lookalike& one, const Lookalike& other) {
  return one.taken == other.taken && one.other == other.other;
}

bool IsThere(const std::string& path) { return Os().files.StampOf(path).error == kNoError; }

// The folder of a path; "" for a drive, a share or a path of one part.
std::string FolderOf(const std::string& path) {
  const size_t last = path.find_last_not_of("\\/");
  const size_t separator = last == std::string::npos ? last : path.find_last_of("\\/", last);
  if (separator == std::string::npos || separator == 0) return "";
  std::string folder = path.substr(0, separator);
  if (folder.back() == ':') return folder + "\\";
  const auto root = static_cast<size_t>(Os().directories.RootLength(path));
  const bool isPartOfRoot =
      folder.size() + 1 < root || folder.find_first_not_of("\\/") == std::string::npos;
  return isPartOfRoot ? "" : folder;
}

std::string TopmostMissing(std::string folder) {
  for (std::string above = FolderOf(folder); !above.empty() && !IsThere(above);
       above = FolderOf(above)) {
    folder = above;
  }
  return folder;
}

}  // namespace

bool WatchedFiles::Seen::operator==(const Seen& other) const {
  return stamp == other.stamp && Same(lookalike, other.lookalike) &&
         readingError == other.readingError;
}

WatchedFiles::WatchedFiles(SecondsClock clock, double interval)
    : clock_(std::move(clock)), interval_(std::max(interval, kCoarsestStamp)) {}

WatchedFiles::Seen WatchedFiles::SeenAt(const std::string& path, const Item& item) {
  Seen seen;
  seen.stamp = Os().files.StampOf(path);
  if (item.asksLookalike) Os().directories.FindLookalike(path, &seen.lookalike);
  if (item.refused || item.refusedBefore) seen.readingError = ReadingError(path);
  return seen;
}

void WatchedFiles::BeginCheck() {
  checkBegan_ = clock_();
  for (auto& [path, item] : items_) {
    item.asked = false;
    item.refusedBefore = std::exchange(item.refused, false);
    item.writtenBefore = std::exchange(item.written, false);
    item.checked = item.now;
    item.isSure = checkBegan_ - item.since >= kCoarsestStamp;
  }
}

// What is known already was looked at before the check began.
void WatchedFiles::Note(const std::string& path) {
  const auto [place, isNew] = items_.try_emplace(path);
  Item& item = place->second;
  item.asked = true;
  if (!isNew) return;
  item.now = SeenAt(path, item);
  item.checked = item.now;
  item.since = clock_();
}

void WatchedFiles::Confirm(const std::string& path) {
  Item& item = items_[path];
  if (item.isSure && !(Os().files.StampOf(path) == item.checked.stamp)) item.isSure = false;
}

void WatchedFiles::NoteLookalike(const std::string& path, const Lookalike& lookalike) {
  Item& item = items_[path];
  item.asksLookalike = true;
  if (!Same(lookalike, item.checked.lookalike)) item.isSure = false;
}

// What is refused without being unreadable is tried once more, and then when something changes.
void WatchedFiles::NoteRefused(const std::string& path) {
  Item& item = items_[path];
  item.refused = true;
  if (!item.refusedBefore && item.checked.readingError == kNoError) item.isSure = false;
}

void WatchedFiles::NoteWritten(const std::string& path) {
  const auto place = items_.find(path);
  if (place != items_.end()) place->second.written = true;
}

// A check that writes is followed by one that reads what it wrote. Where each writes again, that
// one is the last.
void WatchedFiles::TakeOwnWrite(const std::string& path, Item& item) {
  if (!item.written || !item.writtenBefore) return;
  item.now = SeenAt(path, item);
  item.checked = item.now;
  item.since = clock_();
  item.isSure = true;
}

void WatchedFiles::EndCheck() {
  std::erase_if(items_, [](const auto& entry) { return !entry.second.asked; });
  for (auto& [path, item] : items_) {
    TakeOwnWrite(path, item);
  }
  ListFolders();
}

void WatchedFiles::Look() {
  lookBegan_ = clock_();
  for (auto& [path, item] : items_) {
    Seen seen = SeenAt(path, item);
    if (seen == item.now) continue;
    item.now = std::move(seen);
    item.since = clock_();
  }
  LookAtFolders();
}

bool WatchedFiles::IsDue() const {
  bool allStandStill = true;
  double longest = -1;
  for (const auto& [path, item] : items_) {
    if (!item.NeedsCheck()) continue;
    const double stoodStill = lookBegan_ - item.since;
    if (stoodStill < interval_) allStandStill = false;
    longest = std::max(longest, stoodStill);
  }
  if (allStandStill) return longest >= interval_;
  return longest >= interval_ * (1 + kMostIntervalsHeldUp);
}

void WatchedFiles::ListFolders() {
  std::map<std::string, bool> folders;
  for (const auto& [path, item] : items_) {
    const std::string folder = FolderOf(path);
    if (folder.empty() || folders.count(folder) > 0) continue;
    const auto known = folders_.find(folder);
    folders[folder] = known != folders_.end() ? known->second : IsThere(folder);
  }
  folders_ = std::move(folders);
}

void WatchedFiles::LookAtFolders() {
  for (auto& [folder, wasThere] : folders_) {
    const bool isThere = IsThere(folder);
    if (wasThere && !isThere) {
      const std::string topmost = TopmostMissing(folder);
      if (gone_.insert(topmost).second) folderEvents_.push_back({topmost, true});
    }
    wasThere = isThere;
  }
  std::erase_if(gone_, [this](const std::string& folder) {
    if (!IsThere(folder)) return false;
    folderEvents_.push_back({folder, false});
    return true;
  });
}

std::vector<WatchedFiles::FolderEvent> WatchedFiles::TakeFolderEvents() {
  return std::exchange(folderEvents_, {});
}

std::vector<std::string> WatchedFiles::Paths() const {
  std::vector<std::string> paths;
  for (const auto& [path, item] : items_) paths.push_back(path);
  return paths;
}

}  // namespace logchecker
