// Children are real processes here.
#include <gtest/gtest.h>

#include <cstdlib>

#include "platform/Platform.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

Processes& Real() { return RealPlatform().processes; }

std::string CommandProcessor() {
  const char* path = std::getenv("COMSPEC");
  return path != nullptr ? path : "C:\\windows\\system32\\cmd.exe";
}

// A batch file, since the command processor takes words apart in a way of its own.
int32_t StartCommand(const TempFolder& folder, const std::string& command, int32_t seconds) {
  folder.WriteFile("a.bat", command);
  ChildOrder order;
  order.program = CommandProcessor();
  order.arguments = {"/c", folder.Path("a.bat")};
  order.seconds = seconds;
  int32_t child = 0;
  EXPECT_EQ(kNoError, Real().Start(order, &child));
  return child;
}

ChildEnd EndOf(int32_t child) {
  ChildEnd end;
  int32_t ended = 0;
  EXPECT_EQ(kNoError, Real().Wait(&ended, &end));
  EXPECT_EQ(child, ended);
  return end;
}

std::string OutputOf(int32_t child) {
  std::string output;
  for (std::string_view bytes = "x"; !bytes.empty(); output += bytes) {
    EXPECT_EQ(kNoError, Real().ReadOutput(child, static_cast<int64_t>(output.size()), &bytes));
  }
  return output;
}

TEST(WindowsProcesses, AChildsCodeAndWhatItWroteAreTold) {
  const TempFolder folder;
  const int32_t child = StartCommand(folder, "@echo out\r\n@echo err>&2\r\n@exit 7\r\n", 60);
  const ChildEnd end = EndOf(child);
  EXPECT_EQ(7, end.exitCode);
  EXPECT_EQ("", end.reason);
  EXPECT_EQ("out\r\n", OutputOf(child));
  EXPECT_EQ("err\r\n", end.errors);
  Real().Release(child);
  std::string_view bytes;
  EXPECT_EQ(kInvalidCall, Real().ReadOutput(child, 0, &bytes));
}

TEST(WindowsProcesses, OneThatTakesTooLongIsEnded) {
  const TempFolder folder;
  const int32_t child = StartCommand(folder, ":again\r\n@goto again\r\n", 1);
  const ChildEnd end = EndOf(child);
  EXPECT_EQ(-1, end.exitCode);
  EXPECT_EQ("took longer than 1 seconds", end.reason);
  Real().Release(child);
}

TEST(WindowsProcesses, AProgramThatIsNotThereIsNotStarted) {
  ChildOrder order;
  order.program = "C:\\no\\such\\program.exe";
  int32_t child = 0;
  EXPECT_NE(kNoError, Real().Start(order, &child));
  ChildEnd end;
  EXPECT_EQ(kInvalidCall, Real().Wait(&child, &end));
}

TEST(WindowsProcesses, ThereIsAProcessorAtLeast) { EXPECT_GE(Real().Processors(), 1); }

}  // namespace
}  // namespace logchecker
