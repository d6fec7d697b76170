// A station whose settings hold Windows paths, on this system.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/StationText.h"
#include "tests/support/RunProgram.h"

namespace logchecker {
namespace {

TEST(StationPaths, DrivesSharesAndUpperCaseLeadToTheSampleStation) {
  const TempFolder folder;
  const std::string station = folder.Path("station");
  const std::string date = " --date 2026-11-21";
  ASSERT_EQ(0, RunProgram("logcheck", "sample '" + station + "'" + date, folder).exitCode);
  const std::string before =
      RunProgram("logcheck", "--settings '" + station + "' --format csv" + date, folder).output;

  std::filesystem::create_directories(station + "/drives/unc/studio");
  std::filesystem::create_directory_symlink(station + "/audio", station + "/drives/z");
  std::filesystem::create_directory_symlink(station + "/logs", station + "/drives/unc/studio/logs");
  std::filesystem::create_directory_symlink(station, station + "/drives/c");
  std::string family = "[FileLocations]\r\n";
  for (const char* part : {"1", "2", "3", "4"}) {
    family += std::string("Carts") + part + "=Z:\\CARTS " + part + "\r\n";
  }
  folder.WriteFile("station/VELMAR.INI", family);
  std::string settings = folder.ReadFile("station/VELKLT.INI");
  const auto replace = [&](const std::string& from, const std::string& to) {
    const size_t place = settings.find(from);
    ASSERT_NE(std::string::npos, place) << from;
    settings.replace(place, from.size(), to);
  };
  replace(station + "\\logs\\Larkfield", "\\\\STUDIO\\LOGS\\LARKFIELD");
  replace(station + "\\logs\\Easton and Weston", "C:/Logs\\Easton and Weston");
  replace(station + "\\logs\\Coast", ToUpper(station) + "/LOGS/COAST");
  folder.WriteFile("station/VELKLT.INI", settings);

  const ProgramResult after =
      RunProgram("logcheck", "--settings '" + station + "' --format csv" + date, folder);
  EXPECT_EQ(before, after.output);
  EXPECT_EQ(
      "logcheck: warning: split 4 \"Coast\": 1 advert without audio at 16:01: cart 3950 TARN "
      "DAIRIES\n",
      after.errors);
  EXPECT_EQ(1, after.exitCode);
}

TEST(StationPaths, ASettingsFolderThatTheCodePageCannotHoldIsRefused) {
  const TempFolder folder;
  std::filesystem::create_directory(folder.Path() + "/\xE6\x9D\xB1");
  const ProgramResult result =
      RunProgram("logcheck", "--settings '" + folder.Path() + "/\xE6\x9D\xB1'", folder);
  EXPECT_EQ(2, result.exitCode);
  EXPECT_NE(std::string::npos, result.errors.find("the code page can't hold"));
}

}  // namespace
}  // namespace logchecker
