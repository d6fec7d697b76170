// Several programs on one station at once.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <thread>

#include "cartstore/CartRecord.h"
#include "platform/Platform.h"
#include "tests/support/OwnWindowsFolder.h"
#include "tests/support/RunProgram.h"

namespace logchecker {
namespace {

constexpr char kDate[] = " --date 2026-11-21";
constexpr int kRounds = 20;

class TwoInstances : public ::testing::Test {
 protected:
  TwoInstances() {
    RunProgram("logcheck", "sample \"" + Station() + "\"" + kDate, folder_.folder());
  }

  std::string Station() const { return folder_.folder().Path("station"); }
  ProgramResult Check(const TempFolder& output, const std::string& more) const {
    return RunProgram("logcheck",
                      "--settings \"" + Station() + "\" check --format csv" + kDate + more, output);
  }
  // Runs `work` twice at the same time, each with a folder of its own.
  template <typename Work>
  static void RunBoth(const Work& work) {
    std::array<TempFolder, 2> folders;
    std::thread other([&] { work(folders[0]); });
    work(folders[1]);
    other.join();
  }

  OwnWindowsFolder folder_;
};

TEST_F(TwoInstances, EachFindsTheSameAsOneAlone) {
  TempFolder alone;
  const ProgramResult expected = Check(alone, "");
  ASSERT_EQ(1, expected.exitCode);
  RunBoth([&](const TempFolder& output) {
    for (int i = 0; i < kRounds; ++i) {
      const ProgramResult result = Check(output, "");
      EXPECT_EQ(1, result.exitCode) << result.errors;
      EXPECT_EQ(expected.output, result.output);
    }
  });
}

TEST_F(TwoInstances, OneFileThatBothWriteIsTheWholeReportOfOne) {
  TempFolder alone;
  const std::string expected = Check(alone, "").output;
  const std::string file = folder_.folder().Path("both.csv");
  RunBoth([&](const TempFolder& output) {
    for (int i = 0; i < kRounds; ++i) {
      EXPECT_EQ(1, Check(output, " --output \"" + file + "\"").exitCode);
      EXPECT_EQ(expected, folder_.folder().ReadFile("both.csv"));
    }
  });
}

TEST_F(TwoInstances, BothFillAMissingListFileAndItIsWhole) {
  const std::filesystem::path list =
      std::filesystem::path(Station()) / "audio" / "carts 2" / "Carts2.lst";
  ASSERT_TRUE(std::filesystem::exists(list));
  for (int i = 0; i < kRounds; ++i) {
    std::filesystem::remove(list);
    RunBoth([&](const TempFolder& output) {
      const ProgramResult result = Check(output, " --create-missing");
      EXPECT_EQ(1, result.exitCode) << result.errors;
    });
    EXPECT_EQ(1000 * kCartRecordLength, std::filesystem::file_size(list));
  }
}

constexpr int kWrites = 100;

// Two processes at once, each with every second number from 0 to 2 * kWrites - 1.
template <typename Write>
void WriteInTwoProcesses(const Write& write) {
  std::array<pid_t, 2> writers{};
  for (size_t n = 0; n < writers.size(); ++n) {
    writers[n] = fork();
    ASSERT_GE(writers[n], 0);
    if (writers[n] != 0) continue;
    bool written = true;
    for (size_t i = n; i < writers.size() * kWrites; i += writers.size()) {
      written = write(n, std::to_string(i)) && written;
    }
    _exit(written ? 0 : 1);
  }
  for (const pid_t writer : writers) {
    int status = 0;
    ASSERT_EQ(writer, waitpid(writer, &status, 0));
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
  }
}

TEST_F(TwoInstances, SettingsThatBothWriteKeepEveryKey) {
  const TempFolder& windows = folder_.folder();
  const std::string head = "; ours\r\n[General]\r\n";
  windows.WriteFile("VELKLT.INI", head);
  WriteInTwoProcesses([](size_t /*writer*/, const std::string& number) {
    return Os().profiles.WriteString("General", "Key" + number, number, "VELKLT.INI") == kNoError;
  });
  const std::string bytes = windows.ReadFile("VELKLT.INI");
  EXPECT_EQ(0U, bytes.find(head));
  EXPECT_EQ(2 + 2 * kWrites, std::count(bytes.begin(), bytes.end(), '\n'));
  for (int i = 0; i < 2 * kWrites; ++i) {
    const std::string number = std::to_string(i);
    EXPECT_NE(std::string::npos, bytes.find("\r\nKey" + number + "=" + number + "\r\n")) << i;
  }
}

TEST_F(TwoInstances, SettingsThatOneWritesThroughALinkKeepEveryKey) {
  const TempFolder shared;
  shared.WriteFile("VELMAR.INI", "[General]\r\n");
  const TempFolder& windows = folder_.folder();
  std::filesystem::create_symlink(shared.Path("VELMAR.INI"), windows.Path("VELMAR.INI"));
  const std::array<std::string, 2> ways = {"VELMAR.INI", shared.Path("VELMAR.INI")};
  WriteInTwoProcesses([&](size_t writer, const std::string& number) {
    return Os().profiles.WriteString("General", "Key" + number, number, ways[writer]) == kNoError;
  });
  const std::string bytes = shared.ReadFile("VELMAR.INI");
  EXPECT_EQ(1 + 2 * kWrites, std::count(bytes.begin(), bytes.end(), '\n'));
  EXPECT_TRUE(std::filesystem::is_symlink(windows.Path("VELMAR.INI")));
}

TEST_F(TwoInstances, RegistryValuesThatBothWriteAreAllThere) {
  RegistryCalls& registry = Os().registry;
  WriteInTwoProcesses([&](size_t writer, const std::string& number) {
    RegistryKey key = 0;
    const bool written =
        registry.CreateKey(kCurrentUserRoot, "SOFTWARE\\Of" + std::to_string(writer), &key) == 0 &&
        registry.SetValue(key, "Value" + number, kRegistryText, number) == 0;
    registry.CloseKey(key);
    return written;
  });
  for (int i = 0; i < 2 * kWrites; ++i) {
    RegistryKey key = 0;
    const std::string path = "SOFTWARE\\Of" + std::to_string(i % 2);
    ASSERT_EQ(0, registry.OpenKey(kCurrentUserRoot, path, true, &key));
    uint32_t type = 0;
    uint32_t size = 0;
    EXPECT_EQ(0, registry.QueryType(key, "Value" + std::to_string(i), &type, &size)) << i;
    registry.CloseKey(key);
  }
}

}  // namespace
}  // namespace logchecker
