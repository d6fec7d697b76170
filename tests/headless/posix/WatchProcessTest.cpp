// The watch as a process: what it prints, and how it ends.
#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "tests/support/RunProgram.h"

extern char** environ;

namespace logchecker {
namespace {

namespace fs = std::filesystem;

class WatchProcess : public ::testing::Test {
 protected:
  WatchProcess() {
    RunProgram("logcheck",
               "sample '" + folder_.Path("station") + "' --splits 2 --breaks 10 --days 60",
               folder_);
  }
  ~WatchProcess() override {
    if (process_ > 0) kill(process_, SIGKILL);
    close(lines_);
  }

  void Start(const std::vector<std::string>& more) {
    std::vector<std::string> words = {RealPlatform().system.ProgramFolder() + "/logcheck",
                                      "watch",
                                      "--every",
                                      "1",
                                      "--settings",
                                      folder_.Path("station")};
    words.insert(words.end(), more.begin(), more.end());
    std::vector<char*> arguments;
    for (std::string& word : words) arguments.push_back(word.data());
    arguments.push_back(nullptr);
    std::array<int, 2> ends{};
    ASSERT_EQ(0, pipe(ends.data()));
    lines_ = ends[0];
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    // Whoever runs the tests may have been started without some of them.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    posix_spawnattr_t start;
    posix_spawnattr_init(&start);
    posix_spawnattr_setsigdefault(&start, &signals);
    posix_spawnattr_setflags(&start, POSIX_SPAWN_SETSIGDEF);
    ASSERT_EQ(0, posix_spawn(&process_, arguments[0], &actions, &start, arguments.data(), environ));
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&start);
    close(ends[1]);
  }
  // The next line that it prints, or what there is of it at the end.
  std::string Line() const {
    std::string line;
    char c = 0;
    while (read(lines_, &c, 1) == 1 && c != '\n') line += c;
    return line;
  }
  // Reads on to a line with these words.
  bool Prints(const std::string& words) const {
    for (std::string line = Line(); !line.empty(); line = Line()) {
      if (line.find(words) != std::string::npos) return true;
    }
    return false;
  }
  static void WaitFor(const fs::path& file) {
    while (!fs::exists(file)) usleep(1000);
  }
  // A check does, and between two checks no file is open.
  bool HoldsAListFile() const {
    std::error_code ignored;
    for (const auto& entry :
         fs::directory_iterator("/proc/" + std::to_string(process_) + "/fd", ignored)) {
      if (fs::read_symlink(entry.path(), ignored).extension() == ".lst") return true;
    }
    return false;
  }
  int End(int signal) {
    kill(process_, signal);
    int status = 0;
    waitpid(process_, &status, 0);
    process_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  TempFolder folder_;
  pid_t process_ = -1;
  int lines_ = -1;
};

TEST_F(WatchProcess, TellsWhatIsNewAtOnceAndEndsWithSuccess) {
  Start({"--output", folder_.Path("out")});
  EXPECT_TRUE(Prints("watched from now on; 2 of 2 splits have a log"));
  fs::rename(folder_.Path("station/logs/Larkfield"), folder_.Path("away"));
  EXPECT_TRUE(Prints("Larkfield can't be reached"));
  EXPECT_TRUE(Prints("warning: no log for"));
  fs::rename(folder_.Path("away"), folder_.Path("station/logs/Larkfield"));
  EXPECT_TRUE(Prints("Larkfield can be reached again"));
  EXPECT_TRUE(Prints("Larkfield: log arrived"));
  EXPECT_EQ(0, End(SIGTERM));
  EXPECT_NE(std::string::npos, folder_.ReadFile("out").find("There were no problems found."));
}

TEST_F(WatchProcess, EndsWithSuccessInTheMiddleOfACheck) {
  for (const int signal : {SIGTERM, SIGINT}) {
    for (int moment = 0; moment < 5; ++moment) {
      Start({"--days", "60", "--output", folder_.Path("out")});
      while (!HoldsAListFile()) usleep(100);
      usleep(static_cast<useconds_t>(moment) * 1000);
      EXPECT_EQ(0, End(signal)) << moment;
      close(lines_);
    }
  }
  for (const auto& entry : fs::directory_iterator(folder_.Path())) {
    EXPECT_NE('.', entry.path().filename().string()[0]) << entry.path();
  }
}

TEST_F(WatchProcess, TheCommandReadsTheReportAndHasTheCodeInItsEnvironment) {
  Start({"--station", "Larkfield Radio", "--output", folder_.Path("out"), "--run",
         "cat > '" + folder_.Path("given") + "'; echo \"$LOGCHECK_CODE $LOGCHECK_STATION " +
             "$LOGCHECK_DAYS\" > '" + folder_.Path("said") + "'; mv '" + folder_.Path("said") +
             "' '" + folder_.Path("environment") + "'; echo it is full >&2; exit 3"});
  EXPECT_TRUE(Prints("the command ended with 3: it is full"));
  EXPECT_EQ(folder_.ReadFile("out"), folder_.ReadFile("given"));
  EXPECT_EQ(0U, folder_.ReadFile("environment").find("0 Larkfield Radio 20"));
  EXPECT_EQ(0, End(SIGTERM));
}

TEST_F(WatchProcess, EndsInTheMiddleOfACommandThatHangsAndTakesItAlong) {
  Start({"--run", "echo $$ > '" + folder_.Path("number") + "'; mv '" + folder_.Path("number") +
                      "' '" + folder_.Path("process") + "'; sleep 1000"});
  WaitFor(folder_.Path("process"));
  const pid_t command = std::stoi(folder_.ReadFile("process"));
  EXPECT_EQ(0, End(SIGTERM));
  EXPECT_NE(0, kill(command, 0)) << "the command is left behind";
}

}  // namespace
}  // namespace logchecker
