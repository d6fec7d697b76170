#include "platform/posix/PosixEndings.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <climits>
#include <csignal>
#include <cstring>
#include <ctime>

#include "platform/Endings.h"
#include "platform/Processes.h"

namespace logchecker {

namespace {

// Those that end a program unless it says otherwise, and that come from outside or from a limit.
constexpr int kEndings[] = {SIGHUP, SIGINT, SIGQUIT, SIGTERM, SIGXCPU, SIGXFSZ};

enum SlotState { kFree, kBeingFilled, kHeld, kTaken };

// The handler may run on another thread at any moment, so a slot changes hands by its state alone.
struct Slot {
  std::atomic<int> state{kFree};
  pid_t owner = 0;  // a child that was forked off in between does not own the file
  char path[PATH_MAX] = {};
};

constexpr int kSlots = 64;
std::array<Slot, kSlots> gSlots;

struct GroupSlot {
  std::atomic<pid_t> leader{0};  // 0 while it is free
  pid_t owner = 0;
};

constexpr int kGroups = Processes::kMostChildren;
std::array<GroupSlot, kGroups> gGroups;
std::atomic<int> gUninterrupted(0);
std::atomic<int> gPending(0);
std::atomic<bool> gEndsWithSuccess(false);

static_assert(std::atomic<int>::is_always_lock_free, "a handler must not wait for a lock");
static_assert(std::atomic<pid_t>::is_always_lock_free, "a handler must not wait for a lock");

bool Change(Slot& slot, int from, int to) { return slot.state.compare_exchange_strong(from, to); }

int SignalGroups(pid_t self, int signal) {
  int running = 0;
  for (GroupSlot& slot : gGroups) {
    const pid_t leader = slot.leader;
    if (leader == 0 || slot.owner != self) continue;
    kill(-leader, signal);
    if (waitpid(leader, nullptr, WNOHANG) == 0) ++running;
  }
  return running;
}

// They are asked first, so that they can remove what they were writing, and have half a second.
void EndGroups(pid_t self) {
  constexpr int kTries = 100;
  constexpr timespec kFiveMilliseconds = {0, 5000000};
  if (SignalGroups(self, SIGTERM) > 0) {
    for (int i = 0; i < kTries && SignalGroups(self, 0) > 0; ++i) {
      nanosleep(&kFiveMilliseconds, nullptr);
    }
  }
  SignalGroups(self, SIGKILL);
}

std::atomic<int> gFolderState{kFree};
char gFolder[PATH_MAX];

// What is in it is not known, so another program is asked to.
void RemoveFolder() {
  if (gFolderState != kHeld) return;
  const pid_t child = _Fork();
  if (child == 0) {
    execl("/bin/rm", "rm", "-rf", "--", gFolder, nullptr);
    _exit(1);
  }
  if (child > 0) waitpid(child, nullptr, 0);
}

// Calls only what may be called in the middle of anything.
extern "C" void EndProgram(int signal) {
  if (gUninterrupted > 0) {
    gPending = signal;
    return;
  }
  const pid_t self = getpid();
  EndGroups(self);
  for (Slot& slot : gSlots) {
    if (Change(slot, kHeld, kTaken) && slot.owner == self) unlink(slot.path);
  }
  RemoveFolder();
  if (gEndsWithSuccess && (signal == SIGTERM || signal == SIGINT)) _exit(0);
  std::signal(signal, SIG_DFL);
  std::raise(signal);
}

}  // namespace

void VanishingFile::Hold(const std::string& path) {
  Release();
  if (path.size() >= PATH_MAX) return;
  for (int i = 0; i < kSlots; ++i) {
    Slot& slot = gSlots[static_cast<size_t>(i)];
    if (!Change(slot, kFree, kBeingFilled)) continue;
    std::memcpy(slot.path, path.c_str(), path.size() + 1);
    slot.owner = getpid();
    slot.state = kHeld;
    slot_ = i;
    return;
  }
}

void VanishingFile::Release() {
  if (slot_ == kNone) return;
  // A slot that the handler has taken stays with it.
  Change(gSlots[static_cast<size_t>(slot_)], kHeld, kFree);
  slot_ = kNone;
}

void VanishingGroup::Hold(pid_t leader) {
  Release();
  for (int i = 0; i < kGroups; ++i) {
    GroupSlot& slot = gGroups[static_cast<size_t>(i)];
    if (slot.leader != 0) continue;
    slot.owner = getpid();
    slot.leader = leader;
    slot_ = i;
    return;
  }
}

void VanishingGroup::Release() {
  if (slot_ == kNone) return;
  gGroups[static_cast<size_t>(slot_)].leader = 0;
  slot_ = kNone;
}

UninterruptedWrite::UninterruptedWrite() { ++gUninterrupted; }

UninterruptedWrite::~UninterruptedWrite() {
  if (--gUninterrupted > 0) return;
  const int signal = gPending.exchange(0);
  if (signal != 0) std::raise(signal);
}

void EndWithoutTemporaryFiles() {
  for (const int signal : kEndings) {
    struct sigaction now {};
    if (sigaction(signal, nullptr, &now) != 0 || now.sa_handler != SIG_DFL) continue;
    struct sigaction ending {};
    ending.sa_handler = EndProgram;
    ending.sa_flags = SA_RESTART;
    sigemptyset(&ending.sa_mask);
    sigaction(signal, &ending, nullptr);
  }
}

void RemoveFolderWhenEnded(const std::string& folder) {
  gFolderState = kBeingFilled;
  if (folder.empty() || folder.size() >= PATH_MAX) {
    gFolderState = kFree;
    return;
  }
  std::memcpy(gFolder, folder.c_str(), folder.size() + 1);
  gFolderState = kHeld;
}

void EndWithSuccess() { gEndsWithSuccess = true; }

}  // namespace logchecker
