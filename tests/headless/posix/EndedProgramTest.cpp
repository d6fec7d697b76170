// A program that is told to end while it writes many files leaves none that is half written.
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <string>

#include "platform/Platform.h"
#include "tests/support/TempFolder.h"

extern char** environ;

namespace logchecker {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};
constexpr int kRounds = 10;  // with each signal

bool IsTemporary(const std::filesystem::path& file) {
  return file.filename().string().front() == '.';
}

int CountTemporary(const std::filesystem::path& folder) {
  int count = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (IsTemporary(entry.path())) ++count;
  }
  return count;
}

pid_t StartSample(const std::string& folder) {
  std::string program = RealPlatform().system.ProgramFolder() + "/logcheck";
  std::string verb = "sample";
  std::string target = folder;
  std::string days = "--days=60";
  char* arguments[] = {program.data(), verb.data(), target.data(), days.data(), nullptr};
  // Whoever runs the tests may have been started without some of them.
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : kSignals) sigaddset(&signals, signal);
  posix_spawnattr_t start;
  posix_spawnattr_init(&start);
  posix_spawnattr_setsigdefault(&start, &signals);
  posix_spawnattr_setflags(&start, POSIX_SPAWN_SETSIGDEF);
  pid_t process = -1;
  EXPECT_EQ(0, posix_spawn(&process, program.c_str(), nullptr, &start, arguments, environ));
  posix_spawnattr_destroy(&start);
  return process;
}

TEST(EndedProgram, LeavesNoTemporaryFile) {
  const TempFolder folder;
  for (const int signal : kSignals) {
    for (int round = 0; round < kRounds; ++round) {
      const std::string station =
          folder.Path("s" + std::to_string(signal) + "-") + std::to_string(round);
      const pid_t process = StartSample(station);
      ASSERT_GT(process, 0);
      // Its first file is there: the next is being written, and hundreds are to come.
      while (!std::filesystem::exists(station + "/SAMPLE.TXT")) usleep(100);
      usleep(static_cast<useconds_t>(round) * 1000);
      kill(process, signal);
      int status = 0;
      ASSERT_EQ(process, waitpid(process, &status, 0));
      EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == signal) << status;
      EXPECT_EQ(0, CountTemporary(station)) << signal << " in round " << round;
    }
  }
}

}  // namespace
}  // namespace logchecker
