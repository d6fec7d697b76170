// What a station's disk can do to the check: full, read-only, huge, changing under its hands.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "tests/support/RunProgram.h"

namespace logchecker {
namespace {

constexpr char kDate[] = " --date 2026-11-21";

class HostileFilesTest : public ::testing::Test {
 protected:
  HostileFilesTest() {
    station_ = folder_.Path("station");
    const ProgramResult made =
        RunProgram("logcheck",
                   "sample '" + station_ + "' --splits 2 --breaks 60 --adverts 5" + kDate, folder_);
    EXPECT_EQ(0, made.exitCode) << made.errors;
    log_ = station_ + "/logs/Larkfield/261121.LOG";
  }
  ProgramResult Check(const std::string& arguments = "") const {
    return RunProgram("logcheck", "--settings '" + station_ + "'" + kDate + " " + arguments,
                      folder_);
  }
  static size_t Lines(const std::string& text) {
    return static_cast<size_t>(std::count(text.begin(), text.end(), '\n'));
  }
  void ExpectTroubleInOneLine(const ProgramResult& result, const std::string& words) const {
    EXPECT_EQ(2, result.exitCode);
    EXPECT_EQ(1U, Lines(result.errors)) << result.errors;
    EXPECT_NE(std::string::npos, result.errors.find(words)) << result.errors;
  }

  TempFolder folder_;
  std::string station_;
  std::string log_;
};

TEST_F(HostileFilesTest, ASettingsFileThatIsADirectoryIsNoSettingsFile) {
  std::filesystem::remove(station_ + "/VELKLT.INI");
  std::filesystem::create_directory(station_ + "/VELKLT.INI");
  ExpectTroubleInOneLine(Check(), "there are no settings");
}

TEST_F(HostileFilesTest, AFullDiskIsOneLine) {
  ExpectTroubleInOneLine(Check("--output /dev/full"), "Disk full");
  const ProgramResult result = RunProgram(
      "logcheck", "--settings '" + station_ + "'" + kDate + " --format json --output /dev/full",
      folder_);
  ExpectTroubleInOneLine(result, "/dev/full could not be written");
}

TEST_F(HostileFilesTest, ABinaryLogIsReadAsItStands) {
  std::string bytes;
  for (int i = 0; i < 200000; ++i) bytes += static_cast<char>((i * 7919) >> 3);
  std::ofstream(log_, std::ios::binary) << bytes;
  const ProgramResult result = Check();
  EXPECT_EQ(1, result.exitCode) << result.errors;
}

TEST_F(HostileFilesTest, OneLineOf256MiBIsOneAdvert) {
  std::ofstream out(log_, std::ios::binary);
  out << "10:30:00|NTH  00001001 ";
  const std::string block(1 << 20, 'x');
  for (int i = 0; i < 256; ++i) out << block;
  out << "\n\n";
  out.close();
  const ProgramResult result = Check("--format json");
  EXPECT_EQ(1, result.exitCode) << result.errors;
  EXPECT_NE(std::string::npos, result.output.find("\"breaks\": 1,"));
}

TEST_F(HostileFilesTest, AFileOfNothingButOneEndlessLineIsTrouble) {
  std::filesystem::resize_file(log_, uintmax_t{1} << 40);
  ExpectTroubleInOneLine(Check(), "Run-time error 6: Overflow (split 1 \"Larkfield\"");
}

TEST_F(HostileFilesTest, ALogThatGrowsAndShrinksWhileItIsReadNeitherHangsNorCrashes) {
  std::atomic<bool> stop{false};
  std::thread writer([&] {
    for (int i = 0; !stop; ++i) {
      std::ofstream(log_, std::ios::binary | std::ios::app)
          << "10:30:00|NTH  00001001 APPENDED\r\n\r\n";
      if (i % 50 == 49) std::filesystem::resize_file(log_, 100);
    }
  });
  for (int i = 0; i < 20; ++i) {
    const int exitCode = Check().exitCode;
    EXPECT_TRUE(exitCode == 1 || exitCode == 2) << exitCode;
  }
  stop = true;
  writer.join();
}

TEST_F(HostileFilesTest, APipeInTheLogsPlaceIsNoLog) {
  std::filesystem::remove(log_);
  ASSERT_EQ(0, mkfifo(log_.c_str(), 0600));
  const ProgramResult result = Check();
  EXPECT_EQ(1, result.exitCode);
  EXPECT_NE(std::string::npos, result.errors.find("warning: no log"));
}

TEST_F(HostileFilesTest, AStoreFolderThatIsGoneAndWantedIsTroubleThatNamesACart) {
  std::filesystem::rename(station_ + "/audio/carts 2", station_ + "/audio/away");
  const ProgramResult result = Check("--format json");
  EXPECT_EQ(2, result.exitCode);
  EXPECT_EQ(2U, Lines(result.errors)) << result.errors;
  EXPECT_NE(std::string::npos, result.errors.find("could not be found"));
  EXPECT_NE(std::string::npos, result.errors.find("logcheck: cart 1")) << result.errors;
  EXPECT_NE(std::string::npos, result.errors.find("/audio/carts 2")) << result.errors;
}

TEST_F(HostileFilesTest, AStoreThatIsGoneWhollyIsTrouble) {
  std::filesystem::rename(station_ + "/audio", station_ + "/away");
  ExpectTroubleInOneLine(Check(), "can't be opened");
}

TEST_F(HostileFilesTest, ListFilesOfAnyLengthAreFilledAndNeverCut) {
  const std::string list = station_ + "/audio/carts 1/Carts1.lst";
  struct Case {
    uintmax_t before;
    uintmax_t after;
  };
  // 299,999 bytes are so nearly a thousand records that the filling would begin at the 1,001st.
  for (const Case& row : {Case{0, 300000}, Case{1, 300000}, Case{299, 300000}, Case{450, 300000},
                          Case{299700, 300000}, Case{299999, 299999}, Case{300000, 300000},
                          Case{300001, 300001}, Case{400000, 400000}}) {
    std::filesystem::resize_file(list, row.before);
    EXPECT_EQ(1, Check().exitCode);
    EXPECT_EQ(row.after, std::filesystem::file_size(list)) << row.before;
  }
}

TEST_F(HostileFilesTest, ASettingsFileOfManyMegabytesIsNoSettingsFile) {
  std::filesystem::resize_file(station_ + "/VELKLT.INI", 64 << 20);
  ExpectTroubleInOneLine(Check(), "");
}

}  // namespace
}  // namespace logchecker
