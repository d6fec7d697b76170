// The check as a user who may not read, list or write everything that the station has.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "tests/support/posix/PlainUser.h"

namespace logchecker {
namespace {

using std::filesystem::perms;

class PlainUserTest : public ::testing::Test {
 protected:
  PlainUserTest() {
    const ProgramResult made =
        RunProgram("logcheck", "sample '" + station_ + "' --splits 2 --date 2026-11-21", folder_);
    EXPECT_EQ(0, made.exitCode) << made.errors;
    OpenToAll(folder_);
  }
  // What was taken is given back, so that the folder can be removed.
  ~PlainUserTest() override {
    for (const std::string& path : taken_) {
      std::filesystem::permissions(path, perms::owner_all, std::filesystem::perm_options::add);
    }
  }
  void SetMode(const std::string& name, perms modes) {
    taken_.push_back(station_ + name);
    std::filesystem::permissions(taken_.back(), modes);
  }
  ProgramResult Run(const std::string& arguments) const {
    return RunAsPlainUser("logcheck", "--settings '" + station_ + "' " + arguments, folder_);
  }
  ProgramResult Check(const std::string& arguments = "") const {
    return Run("--date 2026-11-21 " + arguments);
  }
  static bool Holds(const std::string& text, const std::string& words) {
    return text.find(words) != std::string::npos;
  }
  static size_t Lines(const std::string& text) {
    return static_cast<size_t>(std::count(text.begin(), text.end(), '\n'));
  }

  TempFolder folder_;
  std::string station_ = folder_.Path("station");
  std::vector<std::string> taken_;
};

TEST_F(PlainUserTest, AListFileThatMayNotBeReadIsTroubleAndLeavesTheOthersAndTheLogsAlone) {
  const std::string before = Check("--format csv").output;
  SetMode("/audio/carts 2/Carts2.lst", perms::none);
  const ProgramResult result = Check("--format json");
  EXPECT_EQ(2, result.exitCode) << result.errors;
  EXPECT_TRUE(Holds(result.errors, "\nlogcheck: cart 1")) << result.errors;
  EXPECT_TRUE(Holds(result.errors, "Carts2.lst: Permission denied, wanted by split "))
      << result.errors;
  EXPECT_FALSE(Holds(result.output, "without audio")) << result.output;
  const ProgramResult cart = Run("cart 1 1001 2001");
  EXPECT_EQ(0, cart.exitCode) << cart.errors;
  EXPECT_TRUE(Holds(cart.output, "\n1001\t52\t")) << cart.output;
  EXPECT_EQ(before, (SetMode("/audio/carts 2/Carts2.lst", perms::owner_read | perms::others_read),
                     Check("--format csv").output));
}

TEST_F(PlainUserTest, AListFileThatCannotBeReadIsAWarningThatSaysWhy) {
  SetMode("/audio/carts 2/Carts2.lst", perms::none);
  const std::string list = station_ + "/audio/carts 3/Carts3.lst";
  std::filesystem::remove(list);
  ASSERT_EQ(0, mkfifo(list.c_str(), 0666));
  std::filesystem::remove(station_ + "/audio/carts 4/Carts4.lst");
  std::filesystem::create_directory(station_ + "/audio/carts 4/Carts4.lst");
  const ProgramResult result = Check("--create-missing");
  EXPECT_EQ(2, result.exitCode);
  EXPECT_EQ(4U, Lines(result.errors)) << result.errors;
  for (const char* words :
       {"warning: part 2 of the cart store can't be read: ", "Carts2.lst: Permission denied\n",
        "warning: part 3 of the cart store can't be read: ", "Carts3.lst: Device I/O error\n",
        "warning: part 4 of the cart store can't be read: ",
        "Carts4.lst: Path/File access error\n"}) {
    EXPECT_TRUE(Holds(result.errors, words)) << words << result.errors;
  }
}

TEST_F(PlainUserTest, AFolderThatCouldBeTwoIsOneWarning) {
  std::filesystem::create_directory(station_ + "/audio/Carts 2");
  std::filesystem::copy_file(station_ + "/audio/carts 2/Carts2.lst",
                             station_ + "/audio/Carts 2/Carts2.lst");
  std::string family = folder_.ReadFile("station/VELMAR.INI");
  const size_t place = family.find("carts 2");
  ASSERT_NE(std::string::npos, place);
  family.replace(place, 7, "CARTS 2");
  folder_.WriteFile("station/VELMAR.INI", family);
  const ProgramResult result = Check();
  EXPECT_EQ(1, result.exitCode);
  EXPECT_EQ(1U, Lines(result.errors)) << result.errors;
  EXPECT_TRUE(Holds(result.errors,
                    "audio/Carts 2\" is used, and \"" + station_ + "/audio/carts 2\" is not."))
      << result.errors;
}

TEST_F(PlainUserTest, SettingsAndAReportThatCouldBeTwoAreAWarningEach) {
  const struct {
    std::string name;
    std::string taken;
    std::string other;
  } names[] = {
      {"/VELKLT.INI", "/Velklt.ini", "/velklt.ini"},
      {"/VELMAR.INI", "/Velmar.ini", "/velmar.ini"},
      {"/audio/carts 1/Audwall.ini", "/audio/carts 1/AUDWALL.INI", "/audio/carts 1/audwall.INI"},
  };
  for (const auto& file : names) {
    std::filesystem::rename(station_ + file.name, station_ + file.taken);
    std::filesystem::copy_file(station_ + file.taken, station_ + file.other);
    const ProgramResult result = Check();
    EXPECT_EQ(1, result.exitCode);
    EXPECT_EQ(1U, Lines(result.errors)) << result.errors;
    EXPECT_TRUE(Holds(result.errors, "\"" + station_ + file.taken + "\" is used, and \"" +
                                         station_ + file.other + "\" is not."))
        << result.errors;
    std::filesystem::remove(station_ + file.other);
    std::filesystem::rename(station_ + file.taken, station_ + file.name);
  }
  const ProgramResult inFolder = RunProgram(
      "logcheck", "--settings '" + folder_.Path("STATION") + "' --date 2026-11-21", folder_);
  EXPECT_EQ("", inFolder.errors);
  std::filesystem::create_directory(folder_.Path("sTATION"));
  const ProgramResult twoFolders = RunProgram(
      "logcheck", "--settings '" + folder_.Path("STATION") + "' --date 2026-11-21", folder_);
  EXPECT_TRUE(Holds(twoFolders.errors, "/sTATION\" is used, and \"" + station_ + "\" is not."))
      << twoFolders.errors;
  for (const char* report : {"Report.csv", "report.csv"}) folder_.WriteFile(report, "old");
  const ProgramResult written =
      RunProgram("logcheck",
                 "--settings '" + station_ + "' --date 2026-11-21 --output '" +
                     folder_.Path("REPORT.CSV") + "'",
                 folder_);
  EXPECT_EQ(1U, Lines(written.errors)) << written.errors;
  EXPECT_TRUE(Holds(written.errors, "/Report.csv\" is used")) << written.errors;
  EXPECT_NE("old", folder_.ReadFile("Report.csv"));
}

TEST_F(PlainUserTest, ALogFolderThatCouldBeTwoIsAWarningOfShowToo) {
  std::filesystem::create_directory(station_ + "/logs/LARKFIELD");
  std::filesystem::rename(station_ + "/logs/LARKFIELD", station_ + "/logs/larkfielD");
  std::string settings = folder_.ReadFile("station/VELKLT.INI");
  const size_t place = settings.find("logs\\Larkfield");
  ASSERT_NE(std::string::npos, place);
  settings.replace(place, 14, "logs\\LARKFIELD");
  folder_.WriteFile("station/VELKLT.INI", settings);
  const ProgramResult result = Run("show --split 1 --date 2026-11-21");
  EXPECT_EQ(0, result.exitCode);
  EXPECT_EQ(1U, Lines(result.errors)) << result.errors;
  EXPECT_TRUE(Holds(result.errors, "logs/Larkfield\" is used")) << result.errors;
}

}  // namespace
}  // namespace logchecker
