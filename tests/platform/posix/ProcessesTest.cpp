// Children are real processes here.
#include "platform/Processes.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <optional>

#include "platform/Platform.h"
#include "platform/posix/PosixProcesses.h"

namespace logchecker {
namespace {

Processes& Real() { return RealPlatform().processes; }

int32_t StartShell(const std::string& script, int32_t seconds = 60) {
  ChildOrder order;
  order.program = "/bin/sh";
  order.arguments = {"-c", script};
  order.seconds = seconds;
  int32_t child = 0;
  EXPECT_EQ(kNoError, Real().Start(order, &child));
  return child;
}

std::string OutputOf(int32_t child) {
  std::string output;
  for (std::string_view bytes = "x"; !bytes.empty(); output += bytes) {
    EXPECT_EQ(kNoError, Real().ReadOutput(child, static_cast<int64_t>(output.size()), &bytes));
  }
  return output;
}

ChildEnd EndOf(int32_t child) {
  ChildEnd end;
  int32_t ended = 0;
  EXPECT_EQ(kNoError, Real().Wait(&ended, &end));
  EXPECT_EQ(child, ended);
  return end;
}

struct Ran {
  ChildEnd end;
  std::string output;
};

Ran RunShell(const std::string& script, int32_t seconds = 60) {
  const int32_t child = StartShell(script, seconds);
  Ran ran;
  ran.end = EndOf(child);
  ran.output = OutputOf(child);
  Real().Release(child);
  return ran;
}

bool IsAlive(const std::string& process) {
  std::ifstream file("/proc/" + process + "/stat");
  std::string text((std::istreambuf_iterator<char>(file)), {});
  return !text.empty() && text.find(") Z ") == std::string::npos;
}

// One that was ended by a signal may need a moment to go.
bool IsGoneSoon(const std::string& process) {
  for (int i = 0; i < 1000 && IsAlive(process); ++i) usleep(10000);
  return !IsAlive(process);
}

std::string FirstLine(const std::string& text) { return text.substr(0, text.find('\n')); }

TEST(Processes, AChildsCodeAndWhatItWroteAreTold) {
  const Ran ran = RunShell("echo out; echo err >&2; exit 7");
  EXPECT_EQ(7, ran.end.exitCode);
  EXPECT_EQ("", ran.end.reason);
  EXPECT_EQ("out\n", ran.output);
  EXPECT_EQ("err\n", ran.end.errors);
}

TEST(Processes, WordsComeAsTheyAre) {
  ChildOrder order;
  order.program = "/usr/bin/printf";
  order.arguments = {"<%s>", "", "a b", "\"'\\", "$HOME *", "C\xF4te"};
  order.seconds = 60;
  int32_t child = 0;
  ASSERT_EQ(kNoError, Real().Start(order, &child));
  EXPECT_EQ(0, EndOf(child).exitCode);
  EXPECT_EQ("<><a b><\"'\\><$HOME *><C\xC3\xB4te>", OutputOf(child));
  Real().Release(child);
}

TEST(Processes, AProgramThatIsNotThereIsNotStarted) {
  ChildOrder order;
  order.program = "/no/such/program";
  int32_t child = 0;
  EXPECT_EQ(kPathNotFound, Real().Start(order, &child));
  ChildEnd end;
  EXPECT_EQ(kInvalidCall, Real().Wait(&child, &end));
}

TEST(Processes, AChildHasNothingToReadAndNoFileOfOurs) {
  int ends[2];
  ASSERT_EQ(0, pipe(ends));
  EXPECT_EQ("0\n1\n2\n", RunShell("cat; ls /proc/$$/fd").output);
  close(ends[0]);
  close(ends[1]);
}

TEST(Processes, HoweverMuchIsWrittenNothingWaits) {
  const Ran ran = RunShell("head -c 20000000 /dev/zero; head -c 20000000 /dev/zero >&2; echo end");
  EXPECT_EQ(0, ran.end.exitCode);
  ASSERT_EQ(20000004U, ran.output.size());
  EXPECT_EQ("end\n", ran.output.substr(20000000));
  EXPECT_EQ(std::string(20000000, '\0'), ran.output.substr(0, 20000000));
  EXPECT_EQ(kMostChildErrors, ran.end.errors.size());
}

TEST(Processes, OutputsOfManyDoNotMix) {
  std::vector<int32_t> children;
  for (const char* letter : {"a", "b", "c"}) {
    children.push_back(StartShell(std::string("head -c 3000001 /dev/zero | tr '\\0' ") + letter));
  }
  int32_t child = 0;
  ChildEnd end;
  for (size_t i = 0; i < children.size(); ++i) ASSERT_EQ(kNoError, Real().Wait(&child, &end));
  EXPECT_EQ(std::string(3000001, 'a'), OutputOf(children[0]));
  // What one has given back another takes.
  Real().Release(children[0]);
  const int32_t fourth = StartShell("head -c 5000000 /dev/zero | tr '\\0' d");
  EXPECT_EQ(0, EndOf(fourth).exitCode);
  EXPECT_EQ(std::string(3000001, 'b'), OutputOf(children[1]));
  EXPECT_EQ(std::string(3000001, 'c'), OutputOf(children[2]));
  EXPECT_EQ(std::string(5000000, 'd'), OutputOf(fourth));
  for (const int32_t each : {children[1], children[2], fourth}) Real().Release(each);
  std::string_view bytes;
  EXPECT_EQ(kInvalidCall, Real().ReadOutput(fourth, 0, &bytes));
}

TEST(Processes, OneThatEndsFirstIsToldFirst) {
  const int32_t slow = StartShell("exec sleep 1000");
  const int32_t quick = StartShell("exit 3");
  EXPECT_EQ(3, EndOf(quick).exitCode);
  Real().Release(slow);
  Real().Release(quick);
}

TEST(Processes, OneThatIsEndedByASignalSaysWhich) {
  const Ran ran = RunShell("kill -SEGV $$");
  EXPECT_EQ(-1, ran.end.exitCode);
  EXPECT_EQ("was ended by signal 11 (SEGV)", ran.end.reason);
}

TEST(Processes, OneThatTakesTooLongIsEndedWithAllThatItStarted) {
  const Ran ran = RunShell("sleep 1000 & echo $!; wait", 1);
  EXPECT_EQ(-1, ran.end.exitCode);
  EXPECT_EQ("took longer than 1 seconds", ran.end.reason);
  EXPECT_TRUE(IsGoneSoon(FirstLine(ran.output)));
}

TEST(Processes, OneThatDoesNotListenIsEndedToo) {
  for (const char* script :
       {"trap '' TERM; echo $$; while :; do sleep 0.1; done", "echo $$; kill -STOP $$"}) {
    const Ran ran = RunShell(script, 1);
    EXPECT_EQ("took longer than 1 seconds", ran.end.reason);
    EXPECT_TRUE(IsGoneSoon(FirstLine(ran.output))) << script;
  }
}

TEST(Processes, WhatAChildLeavesBehindGoesWithIt) {
  const Ran ran = RunShell("sleep 1000 & echo $!");
  EXPECT_EQ(0, ran.end.exitCode);
  EXPECT_TRUE(IsGoneSoon(FirstLine(ran.output)));
}

TEST(Processes, OneThatClosesItsOutputIsStillWaitedFor) {
  const Ran ran = RunShell("exec >&- 2>&-; sleep 0.3; exit 4");
  EXPECT_EQ(4, ran.end.exitCode);
}

// What one of its own, and not the program's, says of a shell's script.
std::string ReasonOf(PosixProcesses& own, const std::string& script) {
  ChildOrder order;
  order.program = "/bin/sh";
  order.arguments = {"-c", script};
  order.seconds = 60;
  int32_t child = 0;
  ChildEnd end;
  EXPECT_EQ(kNoError, own.Start(order, &child));
  EXPECT_EQ(kNoError, own.Wait(&child, &end));
  return end.reason;
}

TEST(Processes, AnEndlessOutputIsEnded) {
  PosixProcesses own(1000000);
  EXPECT_EQ("wrote more than 1000000 bytes", ReasonOf(own, "exec yes"));
  EXPECT_EQ("", ReasonOf(own, "head -c 1000000 /dev/zero"));
}

TEST(Processes, AnOutputThatCannotBeKeptIsSaid) {
  const char* before = std::getenv("TMPDIR");
  const std::optional<std::string> kept =
      before != nullptr ? std::optional<std::string>(before) : std::nullopt;
  setenv("TMPDIR", "/no/such/folder", 1);
  PosixProcesses own;
  EXPECT_EQ(
      "has an output that could not be kept in the folder for temporary files (No such file or "
      "directory)",
      ReasonOf(own, "head -c 1000000 /dev/zero"));
  EXPECT_EQ("", ReasonOf(own, "echo a little"));
  if (kept) {
    setenv("TMPDIR", kept->c_str(), 1);
  } else {
    unsetenv("TMPDIR");
  }
}

TEST(Processes, ProcessorsAreThoseThatThisProgramMayUse) {
  const int32_t all = Real().Processors();
  cpu_set_t before;
  ASSERT_EQ(0, sched_getaffinity(0, sizeof before, &before));
  EXPECT_EQ(CPU_COUNT(&before), all);
  cpu_set_t one;
  CPU_ZERO(&one);
  for (int i = 0; i < CPU_SETSIZE && CPU_COUNT(&one) == 0; ++i) {
    if (CPU_ISSET(i, &before)) CPU_SET(i, &one);
  }
  ASSERT_EQ(0, sched_setaffinity(0, sizeof one, &one));
  EXPECT_EQ(1, Real().Processors());
  sched_setaffinity(0, sizeof before, &before);
}

}  // namespace
}  // namespace logchecker
