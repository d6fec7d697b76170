// Names, paths and arguments that would work a terminal if they came to it as they are.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <nlohmann/json.hpp>

#include "platform/Platform.h"
#include "platform/StationText.h"
#include "tests/support/posix/PlainUser.h"

namespace logchecker {
namespace {

constexpr char kDate[] = " --date 2026-11-21";
// Clears the screen and names the window, by both kinds of control character; every other one.
constexpr char kHostile[] =
    "A\x1B[2J\x1B]0;x\x07"
    "\x9D"
    "0;y\x9C\x81\x8D\x8F\x90\x7F\b\x01\x0E\x1F"
    "Z";

// The first byte of a control character in UTF-8 text but line feed and tabulator; -1 without any.
int FirstControl(const std::string& utf8) {
  for (size_t i = 0; i < utf8.size(); ++i) {
    const auto c = static_cast<unsigned char>(utf8[i]);
    const auto next = i + 1 < utf8.size() ? static_cast<unsigned char>(utf8[i + 1]) : 0;
    const bool low = (c < ' ' && c != '\n' && c != '\t') || c == 0x7F;
    if (low || (c == 0xC2 && next >= 0x80 && next <= 0x9F)) return static_cast<int>(i);
  }
  return -1;
}

class HostileTextTest : public ::testing::Test {
 protected:
  HostileTextTest() {
    station_ = folder_.Path("station");
    EXPECT_EQ(0, Run("sample '" + station_ + "' --splits 2" + kDate).exitCode);
  }
  ProgramResult Run(const std::string& arguments) const {
    return RunProgram("logcheck", arguments, folder_);
  }
  ProgramResult AtStation(const std::string& arguments) const {
    return Run("--settings '" + station_ + "' " + arguments + kDate);
  }
  void SetKey(const std::string& key, const std::string& value) const {
    const std::string file = "station/VELKLT.INI";
    std::string settings = folder_.ReadFile(file);
    const size_t begin = settings.find("\n" + key + "=") + 1;
    ASSERT_NE(0U, begin);
    settings.replace(begin, settings.find_first_of("\r\n", begin) - begin, key + "=" + value);
    folder_.WriteFile(file, settings);
  }
  // The advert's description and reference in every line of the first split's log.
  void SpoilLog() const {
    const std::string file = "station/logs/Larkfield/261121.LOG";
    std::string log = folder_.ReadFile(file);
    for (size_t i = log.find("00000"); i != std::string::npos; i = log.find("00000", i + 1)) {
      const size_t text = log.find(' ', i);
      if (text != std::string::npos) log.replace(text + 1, std::strlen(kHostile), kHostile);
    }
    folder_.WriteFile(file, log);
  }

  TempFolder folder_;
  std::string station_;
};

TEST_F(HostileTextTest, NoControlCharacterComesToATerminal) {
  SetKey("SplitName1", kHostile);
  SpoilLog();
  std::filesystem::remove(station_ + "/logs/Easton and Weston/261121.LOG");
  SetKey("LogSourceDirectory2", std::string("/none/") + kHostile);
  const std::string argument = "\"$(printf 'x\\033[2J\\302\\233J\\302\\201\\007')\"";
  const std::string arguments[] = {"check",
                                   "check --format json",
                                   "show --split 1",
                                   "show --split 2",
                                   "cart 1 2",
                                   "check --date 2031-01-01",
                                   "check --date " + argument,
                                   "check --format " + argument,
                                   "check --output /none/" + argument,
                                   "cart " + argument,
                                   argument,
                                   "--help"};
  for (const std::string& line : arguments) {
    const ProgramResult result = line.find("--date") == std::string::npos
                                     ? AtStation(line)
                                     : Run("--settings '" + station_ + "' " + line);
    EXPECT_EQ(-1, FirstControl(result.output)) << line << "\n" << result.output;
    EXPECT_EQ(-1, FirstControl(result.errors)) << line << "\n" << result.errors;
    EXPECT_FALSE(result.output.empty() && result.errors.empty()) << line;
  }
  const ProgramResult folder = Run("--settings " + argument);
  EXPECT_EQ(2, folder.exitCode);
  EXPECT_EQ(-1, FirstControl(folder.errors)) << folder.errors;
}

TEST_F(HostileTextTest, JsonHoldsItExactly) {
  SetKey("SplitName1", kHostile);
  const auto json = nlohmann::json::parse(AtStation("check --format json").output);
  EXPECT_EQ(ToUtf8(kHostile), json["days"][0]["splits"][0]["name"].get<std::string>());
}

// It is the desktop's file, whose readers are programs.
TEST_F(HostileTextTest, CsvKeepsItAsItIs) {
  SetKey("SplitName1", kHostile);
  const ProgramResult result = AtStation("check --format csv");
  EXPECT_NE(std::string::npos, result.output.find(kHostile)) << result.output;
}

TEST_F(HostileTextTest, CsvOnATerminalHasNoneEither) {
  SetKey("SplitName1", kHostile);
  const std::string program = RealPlatform().system.ProgramFolder() + "/logcheck";
  ProgramResult result =
      RunShellCommand("script -qec '\"" + program + "\" --settings \"" + station_ +
                          "\" --format csv" + kDate + " 2>/dev/null' /dev/null </dev/null",
                      folder_);
  EXPECT_EQ(1, result.exitCode);
  // The terminal ends its lines so itself.
  std::string& text = result.output;
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  EXPECT_NE(std::string::npos, text.find("\"A [2J ]0;x  0;y")) << text;
  EXPECT_EQ(-1, FirstControl(text)) << text;
}

TEST_F(HostileTextTest, AnArgumentIsShownAsItWasTyped) {
  EXPECT_EQ("logcheck: \"caf\xC3\xA9\" is no date of the form YYYY-MM-DD\n",
            Run("--date caf\xC3\xA9").errors);
  EXPECT_EQ("logcheck: \"caf\xC3\xA9\" is no cart number\n", Run("cart caf\xC3\xA9").errors);
}

}  // namespace
}  // namespace logchecker
