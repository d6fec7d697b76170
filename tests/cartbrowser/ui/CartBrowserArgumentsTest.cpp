// What the browser's program says to its arguments without a screen.
#include <gtest/gtest.h>

#include <vector>

#include "cartbrowser/ui/CartBrowserProgram.h"

namespace logchecker {
namespace {

// The exit code of the program, which these arguments keep from opening a window.
int RunWith(std::vector<const char*> arguments) {
  arguments.insert(arguments.begin(), "cartbrowser");
  return RunCartBrowser(static_cast<int>(arguments.size()), const_cast<char**>(arguments.data()),
                        {});
}

TEST(CartBrowserArgumentsTest, AnArgumentThatIsNoNumberIsRefusedByName) {
  const struct {
    std::vector<const char*> arguments;
    const char* says;
  } rows[] = {{{"x"}, "cartbrowser: unknown argument x; see cartbrowser --help\n"},
              {{"-1"}, "cartbrowser: unknown argument -1; see cartbrowser --help\n"},
              {{""}, "cartbrowser: unknown argument ; see cartbrowser --help\n"},
              {{"1", "2"}, "cartbrowser: unknown argument 2; see cartbrowser --help\n"},
              {{"a\nb"}, "cartbrowser: unknown argument a b; see cartbrowser --help\n"},
              {{"1", "--settings"}, "cartbrowser: --settings needs a folder\n"}};
  for (const auto& row : rows) {
    testing::internal::CaptureStderr();
    const int code = RunWith(row.arguments);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), row.says);
    EXPECT_EQ(code, 2) << row.says;
  }
}

TEST(CartBrowserArgumentsTest, HelpAndVersionArePrintedWhateverElseIsGiven) {
  testing::internal::CaptureStdout();
  const int code = RunWith({"x", "--help"});
  const std::string help = testing::internal::GetCapturedStdout();
  EXPECT_EQ(code, 0);
  EXPECT_EQ(help.rfind("Usage: cartbrowser [--settings FOLDER] [NUMBER]\n", 0), 0U) << help;
  testing::internal::CaptureStdout();
  EXPECT_EQ(RunWith({"--version"}), 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout().rfind("cartbrowser ", 0), 0U);
}

}  // namespace
}  // namespace logchecker
