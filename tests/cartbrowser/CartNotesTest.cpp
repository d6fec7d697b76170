#include "cartbrowser/CartNotes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "cartstore/AudiowallParts.h"
#include "common/ErrorState.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class CartNotesTest : public StationTest {
 protected:
  std::string Read(const std::string& name) {
    std::string text = "left from the cart before";
    ReadNotesStart(Path(name), text);
    return text;
  }
};

TEST_F(CartNotesTest, OfBothKindsTheRichTextIsFound) {
  OpenStore(20);
  EXPECT_FALSE(FindCartNotes(7).has_value());
  folder().WriteFile("part1/VEL00007.TXT", "plain");
  EXPECT_EQ(PartEntry(1).Path + "\\VEL00007.TXT", FindCartNotes(7));
  folder().WriteFile("part1/VEL00007.RTF", "rich");
  EXPECT_EQ(PartEntry(1).Path + "\\VEL00007.RTF", FindCartNotes(7));
}

TEST_F(CartNotesTest, ACartOutsideTheStoreHasNone) {
  OpenStore(20);
  folder().WriteFile("part1/VEL00021.TXT", "x");
  folder().WriteFile("part1/VEL00000.TXT", "x");
  EXPECT_FALSE(FindCartNotes(21).has_value());
  EXPECT_FALSE(FindCartNotes(0).has_value());
  EXPECT_FALSE(FindCartNotes(-1).has_value());
}

TEST_F(CartNotesTest, AFolderOfThatNameIsNoNotesFile) {
  OpenStore(20);
  std::filesystem::create_directory(Path("part1") + "/VEL00007.RTF");
  EXPECT_FALSE(FindCartNotes(7).has_value());
}

TEST_F(CartNotesTest, BytesComeAsTheyLieThere) {
  const std::string bytes("{\\rtf1 A\0B\r\n\x1A\xE4}", 16);
  folder().WriteFile("notes", bytes);
  EXPECT_EQ(bytes, Read("notes"));
  folder().WriteFile("empty", "");
  EXPECT_EQ("", Read("empty"));
}

TEST_F(CartNotesTest, ReadingEndsBehindTheTenThousandthCharacter) {
  for (const size_t size : {size_t{9999}, size_t{10000}, size_t{10001}, size_t{200000}}) {
    std::string bytes(size, 'x');
    bytes[std::min(size, kNotesSearched) - 1] = 'y';
    if (size > kNotesSearched) bytes[kNotesSearched] = 'z';
    folder().WriteFile("notes", bytes);
    EXPECT_EQ(bytes.substr(0, kNotesSearched), Read("notes")) << size;
  }
}

TEST_F(CartNotesTest, OfAHugeFileOnlyTheStartIsRead) {
  folder().WriteFile("notes", "START");
  std::filesystem::resize_file(Path("notes"), uintmax_t{300} * 1024 * 1024);
  os.script.Clear();
  const std::string text = Read("notes");
  EXPECT_EQ(kNotesSearched, text.size());
  EXPECT_EQ("START", text.substr(0, 5));
  EXPECT_EQ(1, os.script.CountOf("Files.Peek"));
}

TEST_F(CartNotesTest, NotesThatCannotBeOpenedAreEmpty) {
  EXPECT_EQ("", Read("missing"));
  EXPECT_FALSE(folder().Exists("missing"));
  folder().WriteFile("notes", "x");
  os.script.Clear();
  os.script.FailNamed("Files.OpenForInput", 1, kPermissionDenied);
  EXPECT_EQ("", Read("notes"));
}

TEST_F(CartNotesTest, WhicheverCallFailsNotesAreWholeOrEmptyAndNoNumberStaysHeld) {
  folder().WriteFile("notes", std::string(20000, 'x'));
  int n = 0;
  do {
    os.script.Clear();
    os.script.FailCall(++n, kDeviceIoError);
    const std::string text = Read("notes");
    EXPECT_TRUE(text.empty() || text.size() == kNotesSearched) << n;
    int16_t number = 0;
    EXPECT_EQ(kNoError, RealPlatform().files.FreeFile(&number));
    EXPECT_EQ(1, number) << n;
    RealPlatform().files.Abandon(number);
  } while (os.script.HasFailed());
  EXPECT_GT(n, 3);
}

TEST_F(CartNotesTest, ReadingLeavesTheErrorStateAlone) {
  gErrorState = {kDiskFull, "Disk full"};
  Read("missing");
  EXPECT_EQ(kDiskFull, gErrorState.Number);
}

}  // namespace
}  // namespace logchecker
