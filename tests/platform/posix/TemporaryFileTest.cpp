// What is left of a replacement whose program ends in the middle of it.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

#include "platform/Endings.h"
#include "platform/ErrorNumbers.h"
#include "platform/posix/PosixEndings.h"
#include "platform/posix/Replacement.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

class TemporaryFileTest : public ::testing::Test {
 protected:
  TemporaryFileTest() { folder_.WriteFile("out.csv", "old"); }
  std::string Target() const { return folder_.Path("out.csv"); }

  // Ends in the middle of writing, by `signal`. Returns the signal that the program ended by.
  int EndWhileWriting(int signal, bool isMain) const {
    return Run([&] {
      std::signal(signal, SIG_DFL);  // the tests may have been started without it
      if (isMain) EndWithoutTemporaryFiles();
      Replacement replacement;
      if (replacement.Open(Target()) != kNoError) _exit(1);
      replacement.Append("half", 4);
      std::raise(signal);
    });
  }
  static int Run(const std::function<void()>& work) {
    const pid_t process = fork();
    if (process == 0) {
      work();
      _exit(0);
    }
    int status = 0;
    waitpid(process, &status, 0);
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
  }

  TempFolder folder_;
};

TEST_F(TemporaryFileTest, GoesWithAProgramThatIsToldToEnd) {
  for (const int signal : {SIGHUP, SIGINT, SIGTERM, SIGQUIT}) {
    EXPECT_EQ(signal, EndWhileWriting(signal, true));
    EXPECT_EQ(1U, folder_.Count()) << signal;
    EXPECT_EQ("old", folder_.ReadFile("out.csv"));
  }
}

TEST_F(TemporaryFileTest, ASignalThatTheProgramWasStartedWithoutStaysWithoutEffect) {
  EXPECT_EQ(0, Run([] {
              std::signal(SIGHUP, SIG_IGN);
              EndWithoutTemporaryFiles();
              std::raise(SIGHUP);
            }));
}

TEST_F(TemporaryFileTest, WhatAKilledProgramLeftGoesWithTheNextWrite) {
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(SIGKILL, EndWhileWriting(SIGKILL, true));
    EXPECT_EQ(2U, folder_.Count());
  }
  EXPECT_EQ(kNoError, ReplaceFile(Target(), "new"));
  EXPECT_EQ(1U, folder_.Count());
  EXPECT_EQ("new", folder_.ReadFile("out.csv"));
}

TEST_F(TemporaryFileTest, OneThatIsBeingWrittenStays) {
  Replacement slow;
  ASSERT_EQ(kNoError, slow.Open(Target()));
  slow.Append("slow", 4);
  EXPECT_EQ(kNoError, ReplaceFile(Target(), "quick"));
  EXPECT_EQ("quick", folder_.ReadFile("out.csv"));
  EXPECT_EQ(kNoError, slow.Commit());
  EXPECT_EQ("slow", folder_.ReadFile("out.csv"));
  EXPECT_EQ(1U, folder_.Count());
}

TEST_F(TemporaryFileTest, FilesOfOthersStay) {
  const char* others[] = {".out.csv.a1B2c3", ".out.csv.logchecker-new", ".out.csv.swp",
                          ".other.csv.abcdefghijkl.logchecker-new"};
  for (const char* name : others) folder_.WriteFile(name, "theirs");
  EXPECT_EQ(kNoError, ReplaceFile(Target(), "new"));
  for (const char* name : others) EXPECT_TRUE(folder_.Exists(name)) << name;
}

TEST_F(TemporaryFileTest, ANameOfTheGreatestLengthIsReplacedToo) {
  const std::string name(255, 'n');
  for (const char* content : {"made", "changed"}) {
    EXPECT_EQ(kNoError, ReplaceFile(folder_.Path(name), content));
    EXPECT_EQ(content, folder_.ReadFile(name));
  }
  EXPECT_EQ(2U, folder_.Count());
}

TEST_F(TemporaryFileTest, AnEndingWaitsForAWriteThatMustBeWhole) {
  EXPECT_EQ(SIGTERM, Run([this] {
              std::signal(SIGTERM, SIG_DFL);
              EndWithoutTemporaryFiles();
              {
                const UninterruptedWrite whole;
                std::raise(SIGTERM);
                folder_.WriteFile("out.csv", "whole");
              }
              folder_.WriteFile("out.csv", "too late");
            }));
  EXPECT_EQ("whole", folder_.ReadFile("out.csv"));
}

}  // namespace
}  // namespace logchecker
