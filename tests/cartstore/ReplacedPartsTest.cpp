// A list file that another one has taken the place of, as a restore or a copy over the network
// does.
#include <gtest/gtest.h>

#include <filesystem>

#include "cartstore/Velmar_Cart_Routines.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class ReplacedPartsTest : public StationTest {
 protected:
  ReplacedPartsTest() {
    OpenStore(1020);
    PutCart(5, 30.0F);
    PutCart(1005, 40.0F);
  }
  std::string ListFile() const { return Path("part1") + "/Carts1.lst"; }
  // Makes part 1's list file, with every cart this long.
  void Put(float length, size_t records) {
    const CartRecord record = RecordOfLength(length);
    std::string bytes;
    for (size_t i = 0; i < records; ++i) {
      bytes.append(reinterpret_cast<const char*>(&record), sizeof record);
    }
    folder().WriteFile("part1/Carts1.lst", bytes);
  }
  void Away() { std::filesystem::rename(ListFile(), ListFile() + ".away"); }
  static float LengthOf(int32_t cart) {
    CartInfo info;
    LoadCartInfo(info, cart);
    return info.Length;
  }
};

TEST_F(ReplacedPartsTest, ItsCartsAreReadFromTheNewFileUnderTheSameNumber) {
  const int32_t number = PartEntry(1).FileNumber;
  ReplaceListFile(1, 50.0F);
  EXPECT_EQ(30.0F, LengthOf(5));
  ReopenReplacedParts();
  EXPECT_EQ(50.0F, LengthOf(5));
  EXPECT_EQ(40.0F, LengthOf(1005));
  EXPECT_EQ(number, PartEntry(1).FileNumber);
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ReplacedPartsTest, OneCallForEachOpenPartIsAllThatItTakes) {
  os.script.Clear();
  ReopenReplacedParts();
  EXPECT_EQ((std::vector<std::string>{"Files.ReopenIfReplaced", "Files.ReopenIfReplaced"}),
            os.script.Calls());
  CloseAudiowall();
  os.script.Clear();
  ReopenReplacedParts();
  EXPECT_TRUE(os.script.Calls().empty());
}

TEST_F(ReplacedPartsTest, AFileThatIsMissingJustThenStaysInUseAndIsNotMade) {
  Away();
  ReopenReplacedParts();
  EXPECT_EQ(30.0F, LengthOf(5));
  EXPECT_FALSE(folder().Exists("part1/Carts1.lst"));
  std::filesystem::rename(Path("part1"), Path("gone"));
  ReopenReplacedParts();
  EXPECT_EQ(30.0F, LengthOf(5));
  EXPECT_FALSE(folder().Exists("part1"));
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ReplacedPartsTest, AShortFileIsReadAsItStands) {
  Away();
  Put(50.0F, 6);
  ReopenReplacedParts();
  EXPECT_EQ(50.0F, LengthOf(5));
  CartInfo info{};
  EXPECT_EQ(0, LoadCartInfo(info, 7));
  EXPECT_EQ(-1.0F, info.TotalLength);
  EXPECT_EQ(1800U, folder().ReadFile("part1/Carts1.lst").size());
}

TEST_F(ReplacedPartsTest, AFileThatCannotBeOpenedIsNotPassedOffWithTheOldOne) {
  Away();
  std::filesystem::create_directory(ListFile());
  ReopenReplacedParts();
  EXPECT_EQ(0.0F, LengthOf(5));
  EXPECT_EQ(kPartUnusable, PartEntry(1).State);
  EXPECT_EQ(40.0F, LengthOf(1005));
  std::filesystem::remove(ListFile());
  Put(60.0F, 1000);
  EXPECT_EQ(60.0F, LengthOf(5));
}

TEST_F(ReplacedPartsTest, AFailingCallLeavesWhatWasOpen) {
  ReplaceListFile(1, 50.0F);
  os.script.FailNamed("Files.ReopenIfReplaced", 1, kDeviceIoError);
  ReopenReplacedParts();
  EXPECT_EQ(30.0F, LengthOf(5));
  ReopenReplacedParts();
  EXPECT_EQ(50.0F, LengthOf(5));
}

}  // namespace
}  // namespace logchecker
