#include "common/FileHelpers.h"

#include "common/ErrorState.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class FileHelpersTest : public StationTest {
 protected:
  // The lines of a file with these bytes, until it ends.
  std::vector<std::string> LinesOf(std::string_view bytes) {
    folder().WriteFile("lines.txt", bytes);
    int16_t file = 0;
    EXPECT_EQ(kNoError, Os().files.FreeFile(&file));
    EXPECT_EQ(kNoError, Os().files.OpenForInput(file, Path("lines.txt")));
    std::vector<std::string> lines;
    bool atEnd = false;
    while (Os().files.EndOfFile(file, &atEnd) == kNoError && !atEnd) {
      lines.push_back(ReadTextLine(file));
    }
    Os().files.Close(file);
    return lines;
  }
};

using Lines = std::vector<std::string>;

TEST_F(FileHelpersTest, ALineEndsAtALineFeedAndCarriageReturnsAreDropped) {
  EXPECT_EQ((Lines{"AB"}), LinesOf("AB\r\n"));
  EXPECT_EQ((Lines{"AB", "CD"}), LinesOf("A\rB\r\r\nC\rD\n"));
  EXPECT_EQ((Lines{"", ""}), LinesOf("\n\r\n"));
  EXPECT_EQ((Lines{}), LinesOf(""));
}

TEST_F(FileHelpersTest, AnUnendedFileLosesItsLastCharacter) {
  EXPECT_EQ((Lines{"A"}), LinesOf("AB"));
  EXPECT_EQ((Lines{""}), LinesOf("A"));
  EXPECT_EQ((Lines{"AB", "C"}), LinesOf("AB\nCD"));
  EXPECT_EQ((Lines{"AB"}), LinesOf("AB\r"));
}

// Files are read ahead in parts of 64 KiB; where one part ends must not show.
TEST_F(FileHelpersTest, ALineGoesOnWhereTheReadAheadEnds) {
  constexpr size_t kPart = size_t{64} * 1024;
  for (const size_t parts : {size_t{1}, size_t{2}}) {
    for (size_t before = parts * kPart - 2; before <= parts * kPart + 1; ++before) {
      const std::string text(before, 'x');
      EXPECT_EQ((Lines{text, "AB"}), LinesOf(text + "\nAB\n")) << before;
      EXPECT_EQ((Lines{text, "AB"}), LinesOf(text + "\r\nAB\r\n")) << before;
      EXPECT_EQ((Lines{text + "AB"}), LinesOf(text + "\rAB\n")) << before;
      EXPECT_EQ((Lines{text}), LinesOf(text + "\n")) << before;
      EXPECT_EQ((Lines{text}), LinesOf(text + "Z")) << "the last character is lost, " << before;
      EXPECT_EQ((Lines{text}), LinesOf(text + "\r")) << before;
      EXPECT_EQ((Lines{text, ""}), LinesOf(text + "\nZ")) << before;
    }
  }
}

TEST_F(FileHelpersTest, NoFileOrAFileAtItsEndGivesAnEmptyLine) {
  EXPECT_EQ("", ReadTextLine(0));
  EXPECT_EQ("", ReadTextLine(-1));
  EXPECT_EQ("", ReadTextLine(400));
}

TEST_F(FileHelpersTest, AReadThatFailsStandsInTheErrorState) {
  folder().WriteFile("lines.txt", "AB\n");
  int16_t file = 0;
  Os().files.FreeFile(&file);
  Os().files.OpenForInput(file, Path("lines.txt"));
  os.script.FailNamed("Files.Peek", 1, kDeviceIoError);
  EXPECT_EQ("", ReadTextLine(file));
  EXPECT_EQ(kDeviceIoError, gErrorState.Number);
}

TEST_F(FileHelpersTest, TheLengthOfAFileOrMinusOne) {
  folder().WriteFile("empty", "");
  folder().WriteFile("three", "abc");
  EXPECT_EQ(0, GetFileLength(Path("empty")));
  EXPECT_EQ(3, GetFileLength(Path("three")));
  EXPECT_EQ(-1, GetFileLength(Path("missing")));
  EXPECT_EQ(-1, GetFileLength(folder().Path()));
  EXPECT_EQ(-1, GetFileLength(""));
  os.script.FailNamed("Files.FileLength", 0, kPermissionDenied);
  EXPECT_EQ(-1, GetFileLength(Path("three")));
}

TEST_F(FileHelpersTest, AFileCanBeOpenedWhenItIsThere) {
  folder().WriteFile("three", "abc");
  EXPECT_TRUE(FileCanBeOpened(Path("three")));
  EXPECT_FALSE(FileCanBeOpened(Path("missing")));
}

TEST_F(FileHelpersTest, ALogLineIsStampedWithShortDateAndTime) {
  os.now = 46402 + (9 * 3600 + 5 * 60 + 7) / 86400.0;
  AppendToLogFile(Path("a.log"), true, "first");
  AppendToLogFile(Path("a.log"), false, "second");
  EXPECT_EQ(Os().clock.ShortDate(46402) + " 09:05:07 first\r\nsecond\r\n",
            folder().ReadFile("a.log"));
  AppendToLogFile("", true, "nowhere");
}

TEST_F(FileHelpersTest, AFailureToLogIsSwallowedWhicheverCallItMeets) {
  int n = 0;
  do {
    os.script.Clear();
    os.script.FailCall(++n, kDiskFull);
    AppendToLogFile(Path("a.log"), true, "line");
  } while (os.script.HasFailed());
  EXPECT_GE(n, 4);
  EXPECT_TRUE(ui.messages.empty());
  os.script.Clear();
  int16_t file = 0;
  Os().files.FreeFile(&file);
  EXPECT_EQ(1, file);  // none was kept
}

}  // namespace
}  // namespace logchecker
