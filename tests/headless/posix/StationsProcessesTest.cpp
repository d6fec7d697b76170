// The processes that check many stations, and what becomes of them.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "platform/Platform.h"
#include "tests/support/RunProgram.h"

namespace logchecker {
namespace {

using Json = nlohmann::json;

// So many that a check is met in the middle.
constexpr char kDays[] = " --date 2027-01-15 --days 400";

std::string Contents(const std::string& file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// The check of a station, once it runs.
pid_t ChildFor(const std::string& station) {
  const std::string word = std::string(1, '\0') + "--station=" + station + '\0';
  while (true) {
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
      const std::string name = entry.path().filename().string();
      if (name.find_first_not_of("0123456789") != std::string::npos) continue;
      if (Contents("/proc/" + name + "/cmdline").find(word) != std::string::npos) {
        return static_cast<pid_t>(std::stol(name));
      }
    }
    usleep(1000);
  }
}

bool IsGoneSoon(pid_t process) {
  for (int i = 0; i < 1000; ++i) {
    const std::string text = Contents("/proc/" + std::to_string(process) + "/stat");
    if (text.empty() || text.find(") Z ") != std::string::npos) return true;
    usleep(10000);
  }
  return false;
}

class StationsProcessesTest : public ::testing::Test {
 protected:
  StationsProcessesTest() {
    mark_ = folder_.Path().substr(folder_.Path().find_last_of('/') + 1);
    RunProgram("logcheck", "sample '" + folder_.Path("s") + "' --date 2027-01-15 --days 1",
               folder_);
  }

  // Names no other test's process has.
  std::string Named(const std::string& name) const { return name + mark_; }

  pid_t Start(const std::vector<std::string>& names, const std::string& options) const {
    std::string list;
    for (const std::string& name : names) list += Named(name) + " = s\n";
    folder_.WriteFile("list.txt", list);
    const std::string command = "exec '" + RealPlatform().system.ProgramFolder() +
                                "/logcheck' stations '" + folder_.Path("list.txt") + "'" + kDays +
                                " --format json --output '" + folder_.Path("out.json") + "' " +
                                options + " 2>'" + folder_.Path("errors") + "'";
    const pid_t process = fork();
    if (process == 0) {
      for (const int ending : {SIGTERM, SIGINT, SIGHUP}) std::signal(ending, SIG_DFL);
      execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
      _exit(100);
    }
    return process;
  }

  static int StatusOf(pid_t process) {
    int status = 0;
    waitpid(process, &status, 0);
    return status;
  }

  bool LeavesNoTemporaryFile() const {
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      if (entry.path().filename().string().front() == '.') return false;
    }
    return true;
  }

  TempFolder folder_;
  std::string mark_;
};

TEST_F(StationsProcessesTest, OneThatHangsAndOneThatCrashesAreNoOthersTrouble) {
  const pid_t parent = Start({"Hangs", "Good", "Crashes"}, "--jobs 3 --timeout 20");
  kill(ChildFor(Named("Hangs")), SIGSTOP);
  kill(ChildFor(Named("Crashes")), SIGABRT);
  const int status = StatusOf(parent);
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(2, WEXITSTATUS(status));
  const Json list = Json::parse(folder_.ReadFile("out.json"));
  ASSERT_EQ(3U, list.size());
  ASSERT_EQ(400U, list[0]["days"].size());
  EXPECT_EQ(Named("Hangs"), list[0]["station"]);
  EXPECT_EQ("the check of the station took longer than 20 seconds",
            list[0]["days"][399]["trouble"]);
  EXPECT_EQ(1, list[1]["days"][0]["code"]);
  EXPECT_FALSE(list[1]["days"][0].contains("trouble"));
  EXPECT_EQ("the check of the station was ended by signal 6 (ABRT)", list[2]["days"][0]["trouble"]);
  EXPECT_EQ(2, list[2]["days"][0]["code"]);
  const std::string errors = folder_.ReadFile("errors");
  EXPECT_NE(std::string::npos, errors.find("logcheck: " + Named("Crashes") +
                                           ": the check of the "
                                           "station was ended by signal 6 (ABRT)\n"));
}

TEST_F(StationsProcessesTest, WhoIsToldToEndEndsThemToo) {
  for (const int ending : {SIGTERM, SIGINT, SIGHUP}) {
    folder_.WriteFile("out.json", "yesterday");
    const pid_t parent = Start({"A", "B", "C"}, "--jobs 2");
    const pid_t first = ChildFor(Named("A"));
    const pid_t second = ChildFor(Named("B"));
    // One that doesn't listen is ended all the same.
    kill(second, SIGSTOP);
    kill(parent, ending);
    const int status = StatusOf(parent);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == ending) << status;
    EXPECT_TRUE(IsGoneSoon(first));
    EXPECT_TRUE(IsGoneSoon(second));
    EXPECT_EQ("yesterday", folder_.ReadFile("out.json"));
    EXPECT_TRUE(LeavesNoTemporaryFile());
  }
}

TEST_F(StationsProcessesTest, WhoIsKilledLeavesNoneRunning) {
  const pid_t parent = Start({"A", "B"}, "--jobs 2");
  const pid_t first = ChildFor(Named("A"));
  const pid_t second = ChildFor(Named("B"));
  kill(parent, SIGKILL);
  StatusOf(parent);
  EXPECT_TRUE(IsGoneSoon(first));
  EXPECT_TRUE(IsGoneSoon(second));
}

TEST_F(StationsProcessesTest, ProgressIsForATerminalAlone) {
  folder_.WriteFile("list.txt", "a = s\nb = s\n");
  const std::string program = "'" + RealPlatform().system.ProgramFolder() +
                              "/logcheck' stations '" + folder_.Path("list.txt") +
                              "' --date 2027-01-15";
  // The command's standard error is a terminal there, and what it shows is written down.
  const std::string command = "script -qec \"" + program + " >/dev/null\" '" +
                              folder_.Path("shown") + "' >/dev/null </dev/null";
  EXPECT_NE(0, std::system(command.c_str()));
  const std::string shown = folder_.ReadFile("shown");
  EXPECT_NE(std::string::npos, shown.find("\r0 of 2\r"));
  EXPECT_NE(std::string::npos, shown.find("\r2 of 2\r\r      \r")) << shown;
  EXPECT_EQ("", RunProgram("logcheck",
                           "stations '" + folder_.Path("list.txt") + "' --date 2027-01-15", folder_)
                    .errors);
}

}  // namespace
}  // namespace logchecker
