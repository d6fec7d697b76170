// What a check writes into a station, and that it does without where it may not.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <vector>

#include "tests/support/posix/PlainUser.h"

namespace logchecker {
namespace {

using std::filesystem::perms;
using Entry = std::filesystem::directory_entry;

// A store whose version asks for a backup, with a list file that lacks its last carts.
class ReadOnlyStationTest : public ::testing::Test {
 protected:
  ReadOnlyStationTest() {
    const ProgramResult made =
        RunProgram("logcheck", "sample '" + station_ + "' --date 2026-11-21", folder_);
    EXPECT_EQ(0, made.exitCode) << made.errors;
    folder_.WriteFile("station/audio/carts 1/Audwall.ini", "[Audiowall]\r\nNoCarts=4000\r\n");
    std::filesystem::resize_file(
        station_ + "/audio/carts 4/Carts4.lst",
        std::filesystem::file_size(station_ + "/audio/carts 4/Carts4.lst") - 300);
    OpenToAll(folder_);
  }
  // The rights to write are given back, so that the folder can be removed.
  ~ReadOnlyStationTest() override { SetWriting(std::filesystem::perm_options::add); }

  void SetWriting(std::filesystem::perm_options change) const {
    const perms write = change == std::filesystem::perm_options::add
                            ? perms::owner_write
                            : perms::owner_write | perms::group_write | perms::others_write;
    std::filesystem::permissions(station_, write, change);
    for (const Entry& entry : std::filesystem::recursive_directory_iterator(station_)) {
      std::filesystem::permissions(entry.path(), write, change);
    }
  }

  // The bytes of every file of the station, by its path.
  std::map<std::string, std::string> Contents() const {
    std::map<std::string, std::string> contents;
    for (const Entry& entry : std::filesystem::recursive_directory_iterator(station_)) {
      if (!entry.is_regular_file()) continue;
      std::ifstream file(entry.path(), std::ios::binary);
      contents[entry.path().lexically_relative(station_)] = {std::istreambuf_iterator<char>(file),
                                                             {}};
    }
    return contents;
  }

  std::string Arguments() const { return "--settings '" + station_ + "' --date 2026-11-21"; }

  TempFolder folder_;
  std::string station_ = folder_.Path("station");
};

// The paths of `after` that `before` does not have in the same form. A folder that is named by its
// date stands as "DATE".
std::vector<std::string> Differences(const std::map<std::string, std::string>& before,
                                     const std::map<std::string, std::string>& after) {
  std::vector<std::string> changed;
  for (const auto& [path, bytes] : after) {
    const auto old = before.find(path);
    if (old != before.end() && old->second == bytes) continue;
    changed.push_back(path);
    const size_t date = path.find("/Backups/");
    constexpr size_t kBeforeDate = 9;
    constexpr size_t kDateLength = 10;
    if (date != std::string::npos) changed.back().replace(date + kBeforeDate, kDateLength, "DATE");
  }
  return changed;
}

TEST_F(ReadOnlyStationTest, IsCheckedAllTheSameAndLeftAsItIs) {
  SetWriting(std::filesystem::perm_options::remove);
  const auto before = Contents();
  const ProgramResult readOnly = RunAsPlainUser("logcheck", Arguments(), folder_);
  EXPECT_EQ(1, readOnly.exitCode);
  EXPECT_EQ("", readOnly.errors);
  EXPECT_NE(std::string::npos, readOnly.output.find("5 ad breaks did not match in all splits"))
      << readOnly.output;
  EXPECT_EQ(before, Contents());

  SetWriting(std::filesystem::perm_options::add);
  const ProgramResult writable = RunProgram("logcheck", Arguments(), folder_);
  EXPECT_EQ(writable.output, readOnly.output);
  EXPECT_NE(before, Contents());
}

TEST_F(ReadOnlyStationTest, WhereItMayACheckWritesABackupTheVersionAndMissingRecordsOnce) {
  const auto before = Contents();
  ASSERT_EQ(1, RunProgram("logcheck", Arguments(), folder_).exitCode);
  const auto after = Contents();
  const std::vector<std::string> written = {"audio/carts 1/Audwall.ini",
                                            "audio/carts 1/Backups/DATE/Carts1.lst",
                                            "audio/carts 2/Backups/DATE/Carts2.lst",
                                            "audio/carts 3/Backups/DATE/Carts3.lst",
                                            "audio/carts 4/Backups/DATE/Carts4.lst",
                                            "audio/carts 4/Carts4.lst"};
  EXPECT_EQ(written, Differences(before, after));
  EXPECT_TRUE(Differences(after, before) ==
              (std::vector<std::string>{"audio/carts 1/Audwall.ini", "audio/carts 4/Carts4.lst"}));
  ASSERT_EQ(1, RunProgram("logcheck", Arguments(), folder_).exitCode);
  EXPECT_EQ(after, Contents());
}

}  // namespace
}  // namespace logchecker
