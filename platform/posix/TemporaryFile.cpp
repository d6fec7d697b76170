#include "platform/posix/TemporaryFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <random>
#include <string_view>

#include "platform/posix/FollowLinks.h"

namespace logchecker {

namespace {

// Other programs have hidden temporary files of the form ".name.XXXXXX", and those are theirs.
constexpr std::string_view kEnd = ".logchecker-new";
constexpr size_t kMarkLength = 12;

// What all temporary files of a target begin with. A name of the greatest length has room for no
// more, so the target's own is cut.
std::string Beginning(const std::string& target) {
  constexpr size_t kMostOfName = 200;
  return "." + target.substr(target.find_last_of('/') + 1, kMostOfName) + ".";
}

std::string NewName(const std::string& target) {
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
  std::random_device random;
  std::uniform_int_distribution<size_t> pick(0, kLetters.size() - 1);
  std::string name = FolderOf(target) + Beginning(target);
  for (size_t i = 0; i < kMarkLength; ++i) name += kLetters[pick(random)];
  return name.append(kEnd);
}

// A lock that the file system does not know counts as taken: then nobody can tell a file that is
// being written from one that is not.
bool LockAtOnce(int file) { return flock(file, LOCK_EX | LOCK_NB) == 0; }

// Whichever way the mode allows: the lock needs no more.
int OpenToLock(const std::string& path) {
  for (const int access : {O_RDWR, O_WRONLY, O_RDONLY}) {
    const int file = open(path.c_str(), access | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file >= 0 || errno != EACCES) return file;
  }
  return -1;
}

void RemoveUnlessWritten(const std::string& path) {
  const int file = OpenToLock(path);
  if (file < 0) return;
  struct stat facts {};
  const bool isFile = fstat(file, &facts) == 0 && S_ISREG(facts.st_mode);
  // Between the opening and the lock it may have become the target.
  if (isFile && LockAtOnce(file) && IsNameOf(path, file)) unlink(path.c_str());
  close(file);
}

void RemoveWhatWasLeft(const std::string& target) {
  const std::string folder = FolderOf(target);
  const std::string beginning = Beginning(target);
  DIR* names = opendir(folder.c_str());
  if (names == nullptr) return;
  while (const dirent* entry = readdir(names)) {
    const std::string_view name = entry->d_name;
    const bool ours = name.size() == beginning.size() + kMarkLength + kEnd.size() &&
                      name.substr(0, beginning.size()) == beginning &&
                      name.substr(name.size() - kEnd.size()) == kEnd;
    if (ours) RemoveUnlessWritten(folder + std::string(name));
  }
  closedir(names);
}

}  // namespace

int TemporaryFile::Create(const std::string& target, mode_t mode) {
  constexpr int kTries = 100;
  Discard();
  RemoveWhatWasLeft(target);
  for (int i = 0; i < kTries; ++i) {
    path_ = NewName(target);
    vanishing_.Hold(path_);
    descriptor_ = open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (descriptor_ < 0 && errno != EEXIST) {
      const int error = errno;
      vanishing_.Release();
      return error;
    }
    if (descriptor_ < 0) continue;
    // Another program that clears up may have been quicker with the lock, and then it has gone.
    const bool mine = LockAtOnce(descriptor_) || errno != EWOULDBLOCK;
    if (mine && IsNameOf(path_, descriptor_)) return 0;
    Discard();
  }
  vanishing_.Release();
  return EEXIST;
}

int TemporaryFile::MoveTo(const std::string& target) {
  if (rename(path_.c_str(), target.c_str()) != 0) return errno;
  vanishing_.Release();
  const int closing = close(descriptor_) == 0 ? 0 : errno;
  descriptor_ = -1;
  return closing;
}

void TemporaryFile::Discard() {
  if (descriptor_ < 0) return;
  unlink(path_.c_str());
  close(descriptor_);
  descriptor_ = -1;
  vanishing_.Release();
}

}  // namespace logchecker
