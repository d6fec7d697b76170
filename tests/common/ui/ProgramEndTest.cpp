// How a program with windows ends other than by its user's hand: its display goes, or a run-time
// error stops it. Each runs in a process of its own.
#include <QtGlobal>
#include <cstdlib>

#include "common/ui/DisplayWatch.h"
#include "common/ui/StopProgram.h"
#include "platform/StandardStreams.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

using testing::ExitedWithCode;

using ProgramEndDeathTest = WindowTest;

void Close() { WriteStandardError("closed\n"); }

TEST_F(ProgramEndDeathTest, WithoutADisplayTheProgramSaysThatAloneAndEnds) {
  EXPECT_EXIT(
      {
        const DisplayWatch watch("prog", Close);
        qWarning("could not connect to display");
        qFatal("no platform plugin\ncould be initialised");
      },
      ExitedWithCode(2), "^prog: no display can be opened\nclosed\n$");
}

TEST_F(ProgramEndDeathTest, WithADisplayTheToolkitSpeaksInTheProgramsName) {
  EXPECT_EXIT(
      {
        DisplayWatch watch("prog", Close);
        qWarning("early");
        watch.DisplayIsThere();
        qDebug("a detail");
        qWarning("No graphics. Using CPU conversion.");
        qWarning("two\nlines\n");
        qFatal("the end");
      },
      ExitedWithCode(2), "^prog: early\nprog: two lines\nprog: the end\nclosed\n$");
}

TEST_F(ProgramEndDeathTest, ADisplayThatBreaksIsToldInOneLine) {
  for (const char* what : {"The X11 connection broke (error 1). Did the X11 server die?",
                           "The Wayland connection broke. Did the Wayland compositor die?"}) {
    EXPECT_EXIT(
        {
          DisplayWatch watch("prog", Close);
          watch.DisplayIsThere();
          qWarning("%s", what);
        },
        ExitedWithCode(2), "^prog: the display is gone\nclosed\n$");
  }
}

TEST_F(ProgramEndDeathTest, AnExitThatIsNotTheProgramsOwnMeansThatTheDisplayIsGone) {
  EXPECT_EXIT(
      {
        DisplayWatch watch("prog", Close);
        watch.DisplayIsThere();
        std::exit(1);
      },
      ExitedWithCode(2), "^prog: the display is gone\nclosed\n$");
  EXPECT_EXIT(
      {
        std::atexit([] { std::_Exit(7); });
        {
          DisplayWatch watch("prog", Close);
          watch.DisplayIsThere();
        }
        std::exit(1);
      },
      ExitedWithCode(7), "^$")
      << "the windows do not stand any more";
}

// Has its box say a second error while it shows the first.
class StoppingUi : public RecordingUi {
 public:
  MessageAnswer Show(const Message& message) override {
    WriteStandardError(message.title + ": " + message.text + "\n");
    StopProgram(RunTimeError(52, "second"), Close);
  }
};

TEST_F(ProgramEndDeathTest, ARunTimeErrorIsSaidOnceAndTheProgramEndsWithItsFilesClosed) {
  EXPECT_EXIT(
      {
        StoppingUi failing;
        StopProgram(RunTimeError(53, "first"), Close);
      },
      ExitedWithCode(3),
      "^Velmar KLT Log Checker: Run-time error 53: File not found \\(first\\)\nclosed\n$");
}

}  // namespace
}  // namespace logchecker
