#include "platform/posix/ProfileStore.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <map>

#include "platform/ErrorNumbers.h"
#include "platform/ProfileFiles.h"
#include "platform/posix/FolderLock.h"
#include "platform/posix/FolderNames.h"
#include "platform/posix/Replacement.h"
#include "platform/posix/StationPath.h"

namespace logchecker {

namespace {

// A settings file is some kilobytes long; one far beyond that is no settings file.
constexpr off_t kLongestProfile = off_t{16} * 1024 * 1024;
// A file that changed less than this many seconds ago can change again under the same time stamp.
constexpr time_t kStampSeconds = 2;

struct Known {
  struct stat facts {};
  bool settled = false;
  int64_t seenAt = 0;  // the tick at which the file was last looked at
  ProfileText text;
};

bool Unchanged(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size &&
         a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec &&
         a.st_ctim.tv_sec == b.st_ctim.tv_sec && a.st_ctim.tv_nsec == b.st_ctim.tv_nsec;
}

std::map<std::string, Known>& KnownProfiles() {
  static std::map<std::string, Known> known;
  return known;
}

bool ReadBytes(const std::string& hostPath, std::string* bytes) {
  bytes->clear();
  const int file = open(hostPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return false;
  struct stat facts {};
  bool whole =
      fstat(file, &facts) == 0 && S_ISREG(facts.st_mode) && facts.st_size <= kLongestProfile;
  char part[16384];
  while (whole) {
    const ssize_t count = read(file, part, sizeof part);
    if (count < 0 && errno == EINTR) continue;
    if (count == 0) break;
    whole = count > 0 && static_cast<off_t>(bytes->size()) <= kLongestProfile;
    if (whole) bytes->append(part, static_cast<size_t>(count));
  }
  close(file);
  return whole;
}

}  // namespace

// A settled file is looked at once a tick, as folders are: hundreds of keys are read in one go.
const ProfileText& ReadProfile(const std::string& hostPath) {
  Known& known = KnownProfiles()[hostPath];
  const int64_t tick = gFolderCalls.tick();
  if (known.settled && known.seenAt == tick) return known.text;
  struct stat facts {};
  if (gFolderCalls.stat(hostPath.c_str(), &facts) != 0) {
    known = Known();
    return known.text;
  }
  known.seenAt = tick;
  if (known.settled && Unchanged(known.facts, facts)) return known.text;
  std::string bytes;
  known.text = ReadBytes(hostPath, &bytes) ? ProfileText(bytes) : ProfileText();
  known.facts = facts;
  known.settled = facts.st_mtim.tv_sec + kStampSeconds < gFolderCalls.time(nullptr) &&
                  facts.st_ctim.tv_sec + kStampSeconds < gFolderCalls.time(nullptr);
  return known.text;
}

// A pipe is not opened for it, which would take a place at it.
ProfileState StateOfProfile(const std::string& hostPath) {
  struct stat facts {};
  if (stat(hostPath.c_str(), &facts) != 0) {
    return errno == ENOENT || errno == ENOTDIR ? ProfileState::kMissing : ProfileState::kRefused;
  }
  if (!S_ISREG(facts.st_mode)) return ProfileState::kNoFile;
  if (facts.st_size > kLongestProfile) return ProfileState::kTooLarge;
  const int file = open(hostPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return ProfileState::kRefused;
  close(file);
  return ProfileState::kReadable;
}

namespace {

// The file's text for a change; false when it is there but can't be read.
bool ReadForChange(const std::string& hostPath, ProfileText* text) {
  std::string bytes;
  if (ReadBytes(hostPath, &bytes)) {
    *text = ProfileText(bytes);
    return true;
  }
  struct stat facts {};
  const bool missing = stat(hostPath.c_str(), &facts) != 0 && errno == ENOENT;
  *text = ProfileText();
  return missing || S_ISCHR(facts.st_mode);
}

// Windows always has its folder; here the first file that is written into it makes it.
void MakeWindowsFolderOf(const std::string& hostPath) {
  const std::string& folder = HostWindowsFolder();
  if (hostPath.rfind(folder + "/", 0) != 0) return;
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
}

// Read, changed and written with no other program in between. `change` is false where there is
// nothing to change.
template <typename Change>
int32_t ChangeProfile(const std::string& hostPath, const Change& change) {
  const FolderLock lock(hostPath);
  ProfileText text;
  if (!ReadForChange(hostPath, &text)) return kPathFileAccess;
  if (!change(text)) return kNoError;
  // All of them: the same file may be known by another path too.
  KnownProfiles().clear();
  return ReplaceFile(hostPath, text.Bytes());
}

}  // namespace

int32_t SetProfileKey(const std::string& hostPath, const std::string& section,
                      const std::string& key, const std::string& value) {
  if (!FitsALine(section) || !FitsALine(key) || !FitsALine(value)) return kInvalidCall;
  // Ahead of the lock, which lies on it.
  MakeWindowsFolderOf(hostPath);
  return ChangeProfile(hostPath, [&](ProfileText& text) {
    text.Set(section, key, value);
    return true;
  });
}

int32_t DeleteProfileKey(const std::string& hostPath, const std::string& section,
                         const std::string& key, bool* wasThere) {
  if (!FitsALine(section) || !FitsALine(key)) return kInvalidCall;
  return ChangeProfile(hostPath, [&](ProfileText& text) {
    *wasThere = text.Find(section, key) != nullptr;
    text.DeleteKey(section, key);
    return *wasThere;
  });
}

int32_t DeleteProfileSection(const std::string& hostPath, const std::string& section) {
  if (!FitsALine(section)) return kInvalidCall;
  return ChangeProfile(hostPath, [&](ProfileText& text) {
    const std::string before = text.Bytes();
    text.DeleteSection(section);
    return text.Bytes() != before;
  });
}

}  // namespace logchecker
