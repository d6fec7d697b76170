// The check as a user who may not read, list or write everything that the station has.
#include <gtest/gtest.h>

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

TEST_F(PlainUserTest, AListFileThatMayNotBeReadLeavesTheOthersAndTheLogsAlone) {
  const std::string before = Check("--format csv").output;
  SetMode("/audio/carts 2/Carts2.lst", perms::none);
  const ProgramResult result = Check("--format json");
  EXPECT_EQ(1, result.exitCode) << result.errors;
  EXPECT_TRUE(Holds(result.output, "\"mismatches\"")) << result.output;
  const ProgramResult cart = Run("cart 1 1001 2001");
  EXPECT_EQ(0, cart.exitCode) << cart.errors;
  EXPECT_TRUE(Holds(cart.output, "\n1001\t52\t")) << cart.output;
  EXPECT_EQ(before, (SetMode("/audio/carts 2/Carts2.lst", perms::owner_read | perms::others_read),
                     Check("--format csv").output));
}

}  // namespace
}  // namespace logchecker
