// Settings files that are there and can't be read: none passes for an empty one.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>

#include "tests/support/posix/PlainUser.h"

namespace logchecker {
namespace {

constexpr char kDate[] = " --date 2026-11-21";
constexpr uintmax_t kMost = uintmax_t{16} * 1024 * 1024;

class UnreadableSettingsTest : public ::testing::Test {
 protected:
  UnreadableSettingsTest() : station_(folder_.Path("station")) {
    EXPECT_EQ(0, Run("sample '" + station_ + "' --splits 2" + kDate).exitCode);
  }
  ProgramResult Run(const std::string& arguments) const {
    return RunProgram("logcheck", arguments, folder_);
  }
  ProgramResult Check(const std::string& station) const {
    return Run("--settings '" + station + "'" + kDate);
  }

  TempFolder folder_;
  std::string station_;
};

TEST_F(UnreadableSettingsTest, EachFileIsNamedInOneLine) {
  const std::string store = station_ + "/audio/carts 1";
  const std::string list = folder_.ReadFile("station/audio/carts 1/Carts1.lst");
  const struct {
    const char* words;
    std::function<void(const std::string&)> make;
  } kinds[] = {
      {"is a directory, a pipe or a device",
       [](const std::string& file) { std::filesystem::create_directory(file); }},
      {"is a directory, a pipe or a device",
       [](const std::string& file) { ASSERT_EQ(0, mkfifo(file.c_str(), 0600)); }},
      {"is a directory, a pipe or a device",
       [](const std::string& file) { std::filesystem::create_symlink("/dev/null", file); }},
      {"is larger than 16 MiB",
       [](const std::string& file) {
         std::ofstream(file) << "[General]\n";
         std::filesystem::resize_file(file, kMost + 1);
       }},
      {"the settings can't be read",
       [](const std::string& file) { std::filesystem::create_symlink(file, file); }},
  };
  for (const std::string& file :
       {station_ + "/VELKLT.INI", station_ + "/VELMAR.INI", store + "/Audwall.ini"}) {
    std::filesystem::rename(file, file + ".kept");
    for (const auto& kind : kinds) {
      kind.make(file);
      const ProgramResult result = Check(station_);
      EXPECT_EQ(2, result.exitCode) << file;
      EXPECT_NE(std::string::npos, result.output.find(": not checked: ")) << result.output;
      EXPECT_EQ(1, std::count(result.errors.begin(), result.errors.end(), '\n')) << result.errors;
      EXPECT_NE(std::string::npos, result.errors.find(kind.words)) << result.errors;
      const std::string name = std::filesystem::path(file).filename();
      EXPECT_NE(std::string::npos, result.errors.find(name)) << result.errors;
      std::filesystem::remove(file);
    }
    std::filesystem::rename(file + ".kept", file);
  }
  EXPECT_EQ(list, folder_.ReadFile("station/audio/carts 1/Carts1.lst"));
  EXPECT_FALSE(std::filesystem::exists(store + "/Backups"));
  EXPECT_EQ(1, Check(station_).exitCode);
}

TEST_F(UnreadableSettingsTest, AFileThatMayNotBeReadIsNamed) {
  OpenToAll(folder_);
  ASSERT_EQ(0, chmod((station_ + "/VELMAR.INI").c_str(), 0));
  const ProgramResult result =
      RunAsPlainUser("logcheck", "--settings '" + station_ + "'" + kDate, folder_);
  EXPECT_EQ(2, result.exitCode);
  EXPECT_EQ("logcheck: the settings can't be read: " + station_ + "/VELMAR.INI\n", result.errors);
}

// Whoever looks for the folder finds the same one.
TEST_F(UnreadableSettingsTest, ASettingsFolderIsFoundInAnyLetterCase) {
  const std::string sound = Check(station_).output;
  EXPECT_EQ(sound, Check(folder_.Path("STATION")).output);
  const std::string settings = folder_.ReadFile("station/VELKLT.INI");
  folder_.WriteFile("station/VELKLT.INI", "\xEF\xBB\xBF" + settings);
  EXPECT_EQ(sound, Check(station_).output) << "a mark of UTF-8";
  std::string wide = "\xFF\xFE";
  for (const char c : settings) wide += {c, '\0'};
  folder_.WriteFile("station/VELKLT.INI", wide);
  EXPECT_EQ(sound, Check(station_).output) << "16-bit units";
}

}  // namespace
}  // namespace logchecker
