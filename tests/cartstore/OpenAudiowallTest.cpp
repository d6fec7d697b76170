#include "cartstore/OpenAudiowall.h"

#include <filesystem>

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/ErrorState.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr MessageAnswer kYes = MessageAnswer::kYes;
constexpr MessageAnswer kNo = MessageAnswer::kNo;

class OpenAudiowallTest : public StationTest {
 protected:
  size_t LengthOf(const std::string& name) const { return folder().ReadFile(name).size(); }
  static std::vector<int32_t> StatesOf(int16_t parts) {
    std::vector<int32_t> states;
    for (int16_t part = 1; part <= parts; ++part) states.push_back(PartEntry(part).State);
    return states;
  }
};

using States = std::vector<int32_t>;

TEST_F(OpenAudiowallTest, EachMissingListFileIsAskedForAndFilled) {
  MakeStore(2005);
  ui.answers = {kYes, kYes, kYes};
  EXPECT_EQ(0, OpenAudiowall(0, false));
  ASSERT_EQ(3U, ui.messages.size());
  EXPECT_EQ("Part 2 of the AudioWall has not been found.\nDo you wish to create it in :\n" +
                Path("part2") + "\\Carts2.lst",
            ui.messages[1].text);
  EXPECT_EQ(MessageIcon::kQuestion, ui.messages[1].icon);
  EXPECT_EQ(MessageButtons::kYesNoCancel, ui.messages[1].buttons);
  EXPECT_EQ(300000U, LengthOf("part1/Carts1.lst"));
  EXPECT_EQ(300000U, LengthOf("part2/Carts2.lst"));
  EXPECT_EQ(5U * 300, LengthOf("part3/Carts3.lst"));
  EXPECT_EQ((States{1, 1, 1}), StatesOf(3));
  EXPECT_TRUE(PartEntry(3).IsOpen);
  EXPECT_EQ(Path("part3") + "\\Carts3.lst", PartEntry(3).FullFileName);
  const std::string blank(reinterpret_cast<const char*>(&gBlankCartRecord), kCartRecordLength);
  EXPECT_EQ(blank + blank + blank + blank + blank, folder().ReadFile("part3/Carts3.lst"));
}

TEST_F(OpenAudiowallTest, AnErrorFromBeforeIsForgotten) {
  OpenStore(10);
  CloseAudiowall();
  gErrorState = {kPermissionDenied, "Permission denied"};
  EXPECT_EQ(0, OpenAudiowall(0, false));
  EXPECT_EQ(kNoError, gErrorState.Number);
  EXPECT_EQ("", gErrorState.Description);
  CloseAudiowall();
  PartEntry(1).Path.clear();
  gErrorState = {kPermissionDenied, "Permission denied"};
  EXPECT_EQ(-1, OpenAudiowall(0, true));
  EXPECT_EQ(kNoError, gErrorState.Number) << "where no part has a location too";
}

TEST_F(OpenAudiowallTest, CancelEndsAtOnceAndLeavesTheLaterParts) {
  MakeStore(3000);
  ui.answers = {kYes, MessageAnswer::kCancel};
  EXPECT_EQ(-1, OpenAudiowall(0, false));
  EXPECT_EQ(2U, ui.messages.size());
  EXPECT_EQ((States{1, 1, 0}), StatesOf(3));
  EXPECT_TRUE(PartEntry(1).IsOpen);
  EXPECT_FALSE(PartEntry(2).IsOpen);
}

TEST_F(OpenAudiowallTest, NoPassesOverThatPartAlone) {
  MakeStore(3000);
  ui.answers = {kYes, kNo, kYes};
  EXPECT_EQ(0, OpenAudiowall(0, false));
  EXPECT_EQ(3U, ui.messages.size());
  EXPECT_EQ((States{1, 1, 1}), StatesOf(3));
  EXPECT_FALSE(PartEntry(2).IsOpen);
  EXPECT_FALSE(folder().Exists("part2/Carts2.lst"));
  EXPECT_TRUE(folder().Exists("part3/Carts3.lst"));
}

TEST_F(OpenAudiowallTest, AfterNoTheFirstReadFailsAndTheSecondMakesTheFile) {
  MakeStore(20);
  ui.answers = {kNo};
  EXPECT_EQ(0, OpenAudiowall(0, false));
  EXPECT_EQ(kPartUsable, PartEntry(1).State);
  EXPECT_FALSE(PartEntry(1).IsOpen);
  EXPECT_FALSE(folder().Exists("part1/Carts1.lst"));
  CartInfo info;
  EXPECT_EQ(kBadFileNumber, LoadCartInfo(info, 1));
  EXPECT_EQ(kPartUnusable, PartEntry(1).State);
  EXPECT_FALSE(folder().Exists("part1/Carts1.lst"));
  EXPECT_EQ(0, LoadCartInfo(info, 1));
  EXPECT_EQ(20U * 300, LengthOf("part1/Carts1.lst"));
  EXPECT_EQ(1U, ui.messages.size());
}

TEST_F(OpenAudiowallTest, QuietMakesAMissingFileWithoutAsking) {
  MakeStore(20);
  EXPECT_EQ(0, OpenAudiowall(0, true));
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_EQ(20U * 300, LengthOf("part1/Carts1.lst"));
}

TEST_F(OpenAudiowallTest, PartsWithoutALocationAreCounted) {
  MakeStore(3000);
  PartEntry(1).Path = "";
  PartEntry(3).Path = "   ";
  EXPECT_EQ(-1, OpenAudiowall(0, true));
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_EQ(-1, OpenAudiowall(0, false));
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ("2 locations of the AudioWall have not been set : Please check your configuration.",
            ui.messages[0].text);
  EXPECT_EQ(MessageIcon::kExclamation, ui.messages[0].icon);
  EXPECT_EQ((States{0, 0, 0}), StatesOf(3));
}

TEST_F(OpenAudiowallTest, AMissingDirectoryIsToldOnceForAllPartsInIt) {
  MakeStore(4000);
  PartEntry(2).Path = Path("gone") + " ";
  PartEntry(3).Path = Path("gone") + " ";
  EXPECT_EQ(0, (OpenAudiowall(0, true), OpenAudiowall(0, false)));
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ(
      "There was a problem connecting part(s) of the Audio Wall because the directory: \n\n\"" +
          Path("gone") + "\"\n\n could not be found",
      ui.messages[0].text);
  EXPECT_EQ((States{1, 2, 2, 1}), StatesOf(4));
}

TEST_F(OpenAudiowallTest, AnErrorOfTheListingStandsInTheMessageOfTheDirectory) {
  MakeStore(20);
  os.script.FailNamed("Directories.FirstName", 0, kDeviceIoError);
  EXPECT_EQ(-1, OpenAudiowall(0, false));
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ(
      "There was a problem connecting part(s) of the Audio Wall because the directory: \n\n\"" +
          Path("part1") +
          "\"\n\n could not be found and the error's description was reported as : "
          "\n\n\"Device I/O error\" (57)",
      ui.messages[0].text);
}

TEST_F(OpenAudiowallTest, FailuresOfOpeningAndFillingAreNotTold) {
  for (const char* call : {"Files.FreeFile", "Files.OpenRandom", "Files.LengthOfOpenFile",
                           "Files.PutRecord", "Files.Close"}) {
    ResetGlobals();
    MakeStore(20);
    folder().WriteFile("part1/Carts1.lst", "");
    os.script.Clear();
    os.script.FailNamed(call, 0, kDiskFull);
    EXPECT_EQ(0, OpenAudiowall(0, false)) << call;
    EXPECT_TRUE(os.script.HasFailed()) << call;
    EXPECT_EQ(kPartUsable, PartEntry(1).State) << call;
    EXPECT_TRUE(PartEntry(1).IsOpen) << call;
    RealPlatform().files.CloseAll();
  }
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(OpenAudiowallTest, ANameThatAPartHasIsKept) {
  MakeStore(20);
  PartEntry(1).FileName = "Other.lst";
  EXPECT_EQ(0, OpenAudiowall(0, true));
  EXPECT_EQ(Path("part1") + "\\Other.lst", PartEntry(1).FullFileName);
  EXPECT_TRUE(folder().Exists("part1/Other.lst"));
  EXPECT_FALSE(folder().Exists("part1/Carts1.lst"));
}

TEST_F(OpenAudiowallTest, TheBlankCartIsBuiltAnew) {
  MakeStore(20);
  gAudioSettings.EmptyCartBackColor = 123;
  gAudioSettings.EmptyCartForeColor = 456;
  EXPECT_EQ(0, OpenAudiowall(0, true));
  EXPECT_EQ(123, gBlankCartInfo.BackColor);
  EXPECT_EQ(456, gBlankCartRecord.ForeColor);
  const std::string blank(reinterpret_cast<const char*>(&gBlankCartRecord), kCartRecordLength);
  EXPECT_EQ(blank, folder().ReadFile("part1/Carts1.lst").substr(0, kCartRecordLength));
}

TEST_F(OpenAudiowallTest, NoPartUsableIsAFailure) {
  MakeStore(1500);
  PartEntry(1).Path = Path("gone");
  PartEntry(2).Path = Path("gone too");
  EXPECT_EQ(-1, OpenAudiowall(0, true));
  EXPECT_EQ(-1, OpenAudiowall(2, true));
  PartEntry(2).Path = Path("part2");
  EXPECT_EQ(0, OpenAudiowall(2, true));
  EXPECT_EQ((States{2, 1}), StatesOf(2));
}

TEST_F(OpenAudiowallTest, PartsInOneDirectoryAreCheckedOnce) {
  MakeStore(2000);
  PartEntry(2).Path = PartEntry(1).Path;
  os.script.Clear();
  EXPECT_EQ(0, OpenAudiowall(0, true));
  EXPECT_EQ(1, os.script.CountOf("Directories.FirstName"));
  EXPECT_TRUE(folder().Exists("part1/Carts2.lst"));
}

TEST_F(OpenAudiowallTest, AShortFileIsFilledFromTheRoundedRecordAndALongOneStays) {
  struct Case {
    size_t before;
    size_t after;
    size_t kept;  // bytes at the beginning that are still the old ones
  };
  // 1.5 records and 1 is 2.5, which rounds to 2; 2.5 and 1 is 3.5, which rounds to 4.
  const Case cases[] = {{0, 6000, 0},       {300, 6000, 300},   {450, 6000, 300},
                        {750, 6000, 750},   {5700, 6000, 5700}, {5999, 5999, 5999},
                        {6000, 6000, 6000}, {6001, 6001, 6001}, {9000, 9000, 9000}};
  for (const Case& row : cases) {
    MakeStore(20);
    folder().WriteFile("part1/Carts1.lst", std::string(row.before, 'x'));
    EXPECT_EQ(0, OpenAudiowall(0, false));
    CloseAudiowall();
    const std::string bytes = folder().ReadFile("part1/Carts1.lst");
    EXPECT_EQ(row.after, bytes.size()) << row.before;
    EXPECT_EQ(std::string(row.kept, 'x'), bytes.substr(0, row.kept)) << row.before;
    if (row.after > row.kept) {
      EXPECT_NE('x', bytes[row.before == 750 ? 900 : row.kept]);
    }
  }
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(OpenAudiowallTest, TheLastPartHoldsWhatIsLeft) {
  struct Case {
    int32_t carts;
    int16_t parts;
    size_t lastLength;
  };
  const Case cases[] = {{1, 1, 300},
                        {1000, 1, 300000},
                        {1001, 2, 300},
                        {9999, 10, 999 * 300},
                        {12000, 11, 2000 * 300}};
  for (const Case& row : cases) {
    OpenStore(row.carts);
    EXPECT_EQ(row.parts, PartsInUse());
    CloseAudiowall();
    const std::string n = std::to_string(row.parts);
    EXPECT_EQ(row.lastLength, LengthOf("part" + n + "/Carts" + n + ".lst")) << row.carts;
    std::filesystem::remove(Path("part" + n) + "/Carts" + n + ".lst");
  }
}

TEST_F(OpenAudiowallTest, AStoreWithoutCartsHasNoPart) {
  MakeStore(20);
  gNumberOfCarts = 0;
  EXPECT_EQ(-1, OpenAudiowall(0, false));
  EXPECT_TRUE(ui.messages.empty());
  gNumberOfCarts = -5;  // counts as above 10000
  EXPECT_EQ(-1, OpenAudiowall(0, false));
  EXPECT_EQ(0U, ui.messages.at(0).text.find("10 locations of the AudioWall"));
}

TEST_F(OpenAudiowallTest, AListFileThatIsADirectoryFailsAtTheFirstRead) {
  MakeStore(20);
  Os().directories.MakeDirectory(Path("part1") + "\\Carts1.lst");
  EXPECT_EQ(0, OpenAudiowall(0, true));
  EXPECT_EQ(kPartUsable, PartEntry(1).State);
  CartInfo info;
  EXPECT_EQ(kBadFileNumber, LoadCartInfo(info, 1));
}

TEST_F(OpenAudiowallTest, OpeningAgainUsesTheSameFileNumber) {
  OpenStore(20);
  const int32_t number = PartEntry(1).FileNumber;
  EXPECT_EQ(0, OpenAudiowall(0, true));
  EXPECT_EQ(number, PartEntry(1).FileNumber);
  PutCart(1, 5.0F);
}

TEST_F(OpenAudiowallTest, ClosingKeepsPathAndNumberAlone) {
  OpenStore(20);
  const int32_t number = PartEntry(1).FileNumber;
  CloseAudiowall();
  EXPECT_EQ(Path("part1"), PartEntry(1).Path);
  EXPECT_EQ(number, PartEntry(1).FileNumber);
  EXPECT_EQ("", PartEntry(1).FileName);
  EXPECT_FALSE(PartEntry(1).IsOpen);
  EXPECT_EQ(0, PartEntry(1).State);
  CartRecord record;
  EXPECT_EQ(kBadFileNumber, Os().files.GetRecord(static_cast<int16_t>(number), 1, &record));
}

TEST_F(OpenAudiowallTest, WhicheverCallFailsNothingIsTornAndTheNextOpeningWorks) {
  int n = 0;
  do {
    ResetGlobals();
    MakeStore(1003);
    std::filesystem::remove(Path("part2") + "/Carts2.lst");
    os.script.Clear();
    os.script.FailCall(++n, kDeviceIoError);
    const int32_t result = OpenAudiowall(0, true);
    EXPECT_TRUE(result == 0 || result == -1);
    const bool failed = os.script.HasFailed();
    os.script.Clear();
    EXPECT_EQ(0, OpenAudiowall(0, true)) << n;
    EXPECT_EQ(900U, LengthOf("part2/Carts2.lst")) << n;
    Os().files.CloseAll();
    if (!failed) break;
  } while (n < 2000);
  EXPECT_GT(n, 8);
  EXPECT_LT(n, 2000);
}

}  // namespace
}  // namespace logchecker
