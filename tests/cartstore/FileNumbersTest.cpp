// A part's file number is its own from the first opening to the closing of the store.
#include <gtest/gtest.h>

#include <filesystem>

#include "cartstore/Velmar_Cart_Routines.h"
#include "splitlogs/KLT_Common.h"
#include "splitlogs/SplitSettings.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46347;

class FileNumbersTest : public StationTest {
 protected:
  // Three parts; carts 500, 1500 and 2500 are as long as their numbers.
  void OpenThreeParts() {
    OpenStore(3000);
    for (const int32_t cart : {500, 1500, 2500}) PutCart(cart, static_cast<float>(cart));
  }
  std::string ListFile(int16_t part) const {
    const std::string n = std::to_string(part);
    return Path("part" + n) + "/Carts" + n + ".lst";
  }
  // Makes the part's list file one that can't be opened, and the open one one that can't be read.
  void Spoil(int16_t part) {
    std::filesystem::rename(ListFile(part), ListFile(part) + ".away");
    std::filesystem::create_directory(ListFile(part));
    PartEntry(part).State = kPartUnusable;
  }
  void Mend(int16_t part) {
    std::filesystem::remove(ListFile(part));
    std::filesystem::rename(ListFile(part) + ".away", ListFile(part));
  }
  static int16_t Result(int32_t cart) {
    CartInfo info;
    return LoadCartInfo(info, cart);
  }
  // A part whose read has failed is opened again by one call or the next.
  static float LengthOf(int32_t cart) {
    CartInfo info;
    if (LoadCartInfo(info, cart) != 0) LoadCartInfo(info, cart);
    return info.Length;
  }
  std::string FirstLineOfLog(int16_t split) const {
    const int16_t number = SettingsOf(split).LogFileNumber;
    std::string_view bytes;
    EXPECT_EQ(kNoError, Os().files.Seek(number, 1));
    EXPECT_EQ(kNoError, Os().files.Peek(number, &bytes));
    return std::string(bytes);
  }
  void OpenLog(int16_t split, const std::string& text) {
    WriteLog(split, kDay, text);
    ASSERT_TRUE(OpenLogFile(split, GetLogSourcePath(split, kDay, false)));
  }
};

TEST_F(FileNumbersTest, APartThatCannotBeOpenedKeepsItsNumberAndClosesNobodysLog) {
  OpenThreeParts();
  const int32_t number = PartEntry(2).FileNumber;
  Spoil(2);
  EXPECT_EQ(kBadFileNumber, Result(1500));
  for (int16_t split = 1; split <= 3; ++split) {
    OpenLog(split, "log " + std::to_string(split));
    EXPECT_NE(number, SettingsOf(split).LogFileNumber);
    EXPECT_EQ(kBadFileNumber, Result(1500));
  }
  for (int16_t split = 1; split <= 3; ++split) {
    EXPECT_EQ("log " + std::to_string(split), FirstLineOfLog(split));
  }
  EXPECT_EQ(number, PartEntry(2).FileNumber);
  Mend(2);
  EXPECT_EQ(1500.0F, LengthOf(1500));
  EXPECT_EQ(number, PartEntry(2).FileNumber);
}

TEST_F(FileNumbersTest, PartsThatComeBackLaterShareNoNumber) {
  OpenThreeParts();
  Spoil(2);
  Spoil(3);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(kBadFileNumber, Result(1500));
    EXPECT_EQ(kBadFileNumber, Result(2500));
  }
  Mend(2);
  Mend(3);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(1500.0F, LengthOf(1500));
    EXPECT_EQ(2500.0F, LengthOf(2500));
    EXPECT_EQ(500.0F, LengthOf(500));
  }
  EXPECT_NE(PartEntry(2).FileNumber, PartEntry(3).FileNumber);
}

TEST_F(FileNumbersTest, AFileThatWasFilledAndCannotBeOpenedAgainKeepsItsNumberToo) {
  MakeStore(20);
  os.script.FailNamed("Files.OpenRandom", 2, kPermissionDenied);
  EXPECT_EQ(0, OpenAudiowall(0, true));
  const int32_t number = PartEntry(1).FileNumber;
  OpenLog(1, "log");
  EXPECT_NE(number, SettingsOf(1).LogFileNumber);
  EXPECT_EQ(kBadFileNumber, Result(5));
  EXPECT_EQ(0, Result(5));
  EXPECT_EQ("log", FirstLineOfLog(1));
}

TEST_F(FileNumbersTest, ClosingTheStoreGivesEachNumberBackOnce) {
  OpenThreeParts();
  const int32_t number = PartEntry(1).FileNumber;
  CloseAudiowall();
  OpenLog(1, "log");
  ASSERT_EQ(number, SettingsOf(1).LogFileNumber) << "the number is free again";
  CloseAudiowall();
  EXPECT_EQ("log", FirstLineOfLog(1));
}

TEST_F(FileNumbersTest, AStoreThatIsOpenedAgainClosesNobodysFile) {
  OpenThreeParts();
  CloseAudiowall();
  OpenLog(1, "log 1");
  OpenLog(2, "log 2");
  EXPECT_EQ(0, OpenAudiowall(0, true));
  EXPECT_EQ("log 1", FirstLineOfLog(1));
  EXPECT_EQ("log 2", FirstLineOfLog(2));
  for (const int32_t cart : {500, 1500, 2500}) {
    EXPECT_EQ(static_cast<float>(cart), LengthOf(cart));
  }
}

// The numbers 1 to 3 stay with the parts when the store is closed. Part 3 opens under number 1
// then, and what is left of part 1's must not lead there.
TEST_F(FileNumbersTest, ANumberThatAPartNoLongerHoldsIsNotRead) {
  OpenThreeParts();
  CloseAudiowall();
  ASSERT_EQ(0, OpenAudiowall(3, true));
  ASSERT_EQ(PartEntry(1).FileNumber, PartEntry(3).FileNumber);
  PartEntry(1).State = kPartUsable;
  EXPECT_EQ(kBadFileNumber, Result(500));
  EXPECT_EQ(500.0F, LengthOf(500));
}

TEST_F(FileNumbersTest, APartWithoutANumberTakesOneWhenThereIsOneAgain) {
  OpenThreeParts();
  CloseAudiowall();
  std::vector<int16_t> taken;
  int16_t number = 0;
  while (Os().files.FreeFile(&number) == kNoError) taken.push_back(number);
  EXPECT_EQ(0, OpenAudiowall(0, true)) << "a step that fails is not told";
  EXPECT_EQ(kBadFileNumber, Result(500));
  for (const int16_t each : taken) Os().files.Close(each);
  EXPECT_EQ(500.0F, LengthOf(500));
  EXPECT_EQ(1500.0F, LengthOf(1500));
}

TEST_F(FileNumbersTest, APartThatHasMovedIsNotReadFromItsOldPlace) {
  OpenThreeParts();
  std::filesystem::create_directory(Path("new"));
  PartEntry(2).Path = Path("new");
  ui.answers = {MessageAnswer::kNo};
  EXPECT_EQ(0, OpenAudiowall(0, false));
  EXPECT_EQ(kBadFileNumber, Result(1500)) << "no file is open";
  EXPECT_FALSE(PartEntry(2).IsOpen);
  EXPECT_EQ(500.0F, LengthOf(500));
}

}  // namespace
}  // namespace logchecker
