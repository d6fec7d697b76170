#include "cartstore/LoadCartInfo.h"

#include <cstring>
#include <filesystem>
#include <limits>

#include "cartstore/Velmar_Cart_Routines.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class LoadCartInfoTest : public StationTest {
 protected:
  static bool IsBlank(const CartInfo& info) {
    return info.PlayLength == -1.0F && info.TotalLength == -1.0F && info.Length == 0 &&
           info.Line1 == gBlankCartInfo.Line1;
  }
  static float LengthOf(int32_t cart) {
    CartInfo info;
    EXPECT_EQ(0, LoadCartInfo(info, cart)) << cart;
    return info.Length;
  }
  // The file number that is handed out next.
  static int16_t FreeNumber() {
    int16_t number = 0;
    EXPECT_EQ(kNoError, RealPlatform().files.FreeFile(&number));
    RealPlatform().files.Abandon(number);
    return number;
  }
  // Puts a record whose lengths are these at cart 1 and loads it.
  CartInfo Load(float total, float start, float end, float play) {
    CartRecord record = RecordOfLength(9);
    record.TotalLength = total;
    record.StartPoint = start;
    record.EndPoint = end;
    record.PlayLength = play;
    PutCart(1, record);
    CartInfo info;
    EXPECT_EQ(0, LoadCartInfo(info, 1));
    return info;
  }
};

TEST_F(LoadCartInfoTest, ANumberOutsideTheStoreIsTheBlankCart) {
  OpenStore(20);
  for (const int32_t cart : {0, -1, 21, 2147483647, -2147483647 - 1}) {
    CartInfo info{};
    EXPECT_EQ(-1, LoadCartInfo(info, cart)) << cart;
    EXPECT_TRUE(IsBlank(info)) << cart;
  }
}

TEST_F(LoadCartInfoTest, PartsBeginAtEachThousandAndEndAtTenThousand) {
  OpenStore(10002);
  const int32_t carts[] = {1, 1000, 1001, 2000, 9001, 10000, 10001, 10002};
  for (const int32_t cart : carts) PutCart(cart, static_cast<float>(cart));
  for (const int32_t cart : carts) EXPECT_EQ(static_cast<float>(cart), LengthOf(cart));
  const auto recordAt = [&](const char* file, size_t record) {
    CartRecord result;
    const std::string bytes = folder().ReadFile(file);
    std::memcpy(&result, bytes.data() + (record - 1) * kCartRecordLength, kCartRecordLength);
    return result.Length;
  };
  EXPECT_EQ(1000.0F, recordAt("part1/Carts1.lst", 1000));
  EXPECT_EQ(1001.0F, recordAt("part2/Carts2.lst", 1));
  EXPECT_EQ(10000.0F, recordAt("part10/Carts10.lst", 1000));
  EXPECT_EQ(10001.0F, recordAt("part11/Carts11.lst", 1));
}

TEST_F(LoadCartInfoTest, GetCartPartIsAsTabled) {
  const std::pair<int32_t, int16_t> cases[] = {{1, 1},     {1000, 1},   {1001, 2},   {2000, 2},
                                               {9001, 10}, {10000, 10}, {10001, 11}, {99999, 11},
                                               {-1, 11},   {0, 0}};
  for (const auto& [cart, part] : cases) EXPECT_EQ(part, GetCartPart(cart)) << cart;
}

TEST_F(LoadCartInfoTest, AMissingPlayedStretchIsTheWholeLength) {
  OpenStore(20);
  CartInfo info = Load(12.5F, 0, 0, 0);
  EXPECT_EQ(12.5F, info.EndPoint);
  EXPECT_EQ(12.5F, info.PlayLength);
  EXPECT_EQ(9.0F, info.Length);
  info = Load(12.5F, 3, 0, 4);
  EXPECT_EQ(0.0F, info.StartPoint);
  EXPECT_EQ(12.5F, info.PlayLength);
  info = Load(12.5F, 3, 8, 0);
  EXPECT_EQ(12.5F, info.EndPoint);
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(12.5F, Load(12.5F, 1, nan, 5).EndPoint);
}

TEST_F(LoadCartInfoTest, APlayedStretchIsLeftAsItStands) {
  OpenStore(20);
  const CartInfo info = Load(12.5F, 7, 2, 99);
  EXPECT_EQ(7.0F, info.StartPoint);
  EXPECT_EQ(2.0F, info.EndPoint);
  EXPECT_EQ(99.0F, info.PlayLength);
}

TEST_F(LoadCartInfoTest, AnUnusedCartIsBlankAndASilentOneKeepsItsTexts) {
  OpenStore(20);
  EXPECT_TRUE(IsBlank(Load(-1, 1, 2, 3)));
  const CartInfo silent = Load(0, 0, 0, 0);
  EXPECT_EQ(0.0F, silent.PlayLength);
  EXPECT_EQ('A', silent.Line1[0]);
}

TEST_F(LoadCartInfoTest, AnOwnListFileIsReadFirstUnlessItIsEmpty) {
  OpenStore(100);
  PutCart(42, 10.0F);
  const CartRecord own = RecordOfLength(20.0F);
  const std::string_view bytes(reinterpret_cast<const char*>(&own), sizeof own);
  folder().WriteFile("part1/VEL00042.LST", bytes);
  EXPECT_EQ(10.0F, LengthOf(42));
  gAudioSettings.UseIndividualCartListFiles = true;
  EXPECT_EQ(20.0F, LengthOf(42));
  folder().WriteFile("part1/VEL00042.LST", "");
  EXPECT_EQ(10.0F, LengthOf(42));
  std::filesystem::remove(Path("part1") + "/VEL00042.LST");
  EXPECT_EQ(10.0F, LengthOf(42));
  // A file that ends inside the record leaves the blank cart's bytes behind its end.
  folder().WriteFile("part1/VEL00042.LST", bytes.substr(0, 274));
  CartInfo info{};
  EXPECT_EQ(0, LoadCartInfo(info, 42));
  EXPECT_TRUE(IsBlank(info));
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LoadCartInfoTest, AnOwnListFileThatCannotBeReadIsAnErrorOfItsOwn) {
  OpenStore(100);
  PutCart(42, 10.0F);
  folder().WriteFile("part1/VEL00042.LST", "x");
  gAudioSettings.UseIndividualCartListFiles = true;
  const int32_t held = FreeNumber();
  for (const char* call :
       {"Files.FreeFile", "Files.OpenRandom", "Files.GetRecord", "Files.Close"}) {
    CartInfo info{};
    os.script.Clear();
    os.script.FailNamed(call, 1, kPermissionDenied);
    EXPECT_EQ(kPermissionDenied, LoadCartInfo(info, 42)) << call;
    EXPECT_TRUE(IsBlank(info)) << call;
    EXPECT_EQ(kPartUsable, PartEntry(1).State) << call;
    EXPECT_EQ(held, FreeNumber()) << call << ": its number is given back";
  }
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LoadCartInfoTest, ACartIsOneReadOfTheOpenFileOrOneOpeningOfItsOwn) {
  OpenStore(100);
  os.script.Clear();
  EXPECT_EQ(0.0F, LengthOf(42));
  EXPECT_EQ((std::vector<std::string>{"Files.GetRecord"}), os.script.Calls());
  const CartRecord own = RecordOfLength(20.0F);
  folder().WriteFile("part1/VEL00042.LST",
                     std::string_view(reinterpret_cast<const char*>(&own), sizeof own));
  gAudioSettings.UseIndividualCartListFiles = true;
  os.script.Clear();
  EXPECT_EQ(20.0F, LengthOf(42));
  EXPECT_EQ((std::vector<std::string>{"Files.FileLength", "Files.FreeFile", "Files.OpenRandom",
                                      "Files.GetRecord", "Files.Close"}),
            os.script.Calls());
}

TEST_F(LoadCartInfoTest, AListFilesNameIsTheSameInAnyCase) {
  MakeStore(20);
  gAudioSettings.UseIndividualCartListFiles = true;
  const CartRecord in[] = {RecordOfLength(10.0F), RecordOfLength(20.0F)};
  folder().WriteFile("part1/CARTS1.LST",
                     std::string_view(reinterpret_cast<const char*>(in), sizeof in));
  folder().WriteFile("part1/vel00002.lst",
                     std::string_view(reinterpret_cast<const char*>(&in[0]), sizeof in[0]));
  EXPECT_EQ(0, OpenAudiowall(0, false));
  EXPECT_TRUE(ui.messages.empty());
  EXPECT_EQ(10.0F, LengthOf(1));
  EXPECT_EQ(10.0F, LengthOf(2));
  gAudioSettings.UseIndividualCartListFiles = false;
  EXPECT_EQ(20.0F, LengthOf(2));
}

TEST_F(LoadCartInfoTest, APartWithoutALocationBecomesUnusableByARead) {
  MakeStore(2000);
  PartEntry(2).Path = "";
  EXPECT_EQ(-1, OpenAudiowall(0, true));
  CartInfo info{};
  EXPECT_EQ(-1, LoadCartInfo(info, 1001));
  EXPECT_TRUE(IsBlank(info));
  EXPECT_EQ(kPartUnusable, PartEntry(2).State);
  EXPECT_EQ(0, LoadCartInfo(info, 1)) << "the other parts are opened by their own reads";
  EXPECT_EQ(kPartUsable, PartEntry(1).State);
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(LoadCartInfoTest, APartWhoseReadFailedIsOpenedAgainByTheNextCall) {
  OpenStore(20);
  PutCart(5, 30.0F);
  os.script.FailNamed("Files.GetRecord", 1, kDeviceIoError);
  CartInfo info{};
  EXPECT_EQ(kDeviceIoError, LoadCartInfo(info, 5));
  EXPECT_TRUE(IsBlank(info));
  EXPECT_EQ(kPartUnusable, PartEntry(1).State);
  EXPECT_EQ(30.0F, LengthOf(5));
  EXPECT_EQ(kPartUsable, PartEntry(1).State);
}

TEST_F(LoadCartInfoTest, APartThatGoesAwayAndComesBackIsPickedUp) {
  OpenStore(20);
  PutCart(5, 30.0F);
  CloseAudiowall();
  std::filesystem::rename(Path("part1"), Path("away"));
  CartInfo info{};
  EXPECT_EQ(-1, LoadCartInfo(info, 5));
  EXPECT_TRUE(IsBlank(info));
  EXPECT_EQ(kPartUnusable, PartEntry(1).State);
  std::filesystem::rename(Path("away"), Path("part1"));
  EXPECT_EQ(30.0F, LengthOf(5));
  EXPECT_TRUE(ui.messages.empty());
}

// The directory is what is found, not each part's file.
TEST_F(LoadCartInfoTest, APartFoundByAnotherOneOfItsDirectoryIsOpenedAfterItsFirstReadFailed) {
  MakeStore(2000);
  PartEntry(2).Path = PartEntry(1).Path;
  CartInfo info{};
  EXPECT_EQ(0, LoadCartInfo(info, 1));
  EXPECT_EQ(kPartUsable, PartEntry(2).State);
  EXPECT_FALSE(PartEntry(2).IsOpen);
  EXPECT_EQ(kBadFileNumber, LoadCartInfo(info, 1001));
  EXPECT_EQ(kPartUnusable, PartEntry(2).State);
  EXPECT_EQ(0, LoadCartInfo(info, 1001));
  EXPECT_EQ(kPartUsable, PartEntry(1).State) << "a part that is open stays so";
  EXPECT_EQ(0, LoadCartInfo(info, 1));
}

TEST_F(LoadCartInfoTest, WhicheverCallFailsTheCartIsRightOrBlank) {
  OpenStore(20);
  PutCart(5, 30.0F);
  gAudioSettings.UseIndividualCartListFiles = true;
  folder().WriteFile("part1/VEL00005.LST", "");
  int n = 0;
  do {
    CloseAudiowall();
    os.script.Clear();
    os.script.FailCall(++n, kDeviceIoError);
    CartInfo info{};
    const int16_t result = LoadCartInfo(info, 5);
    EXPECT_TRUE(info.Length == 30.0F || IsBlank(info)) << n;
    EXPECT_EQ(result == 0, info.Length == 30.0F) << n;
  } while (os.script.HasFailed());
  EXPECT_GT(n, 4);
}

TEST_F(LoadCartInfoTest, NamesOfACartsFiles) {
  OpenStore(12000);
  PartEntry(11).Path = "D:\\ELEVEN";
  EXPECT_EQ(PartEntry(1).Path + "\\VEL00042", GetCartFileStem(42));
  EXPECT_EQ("D:\\ELEVEN\\VEL10001", GetCartFileStem(10001));
  EXPECT_EQ("", GetCartFileStem(0));
  EXPECT_EQ("", GetCartFileStem(12001));
  gNumberOfCarts = 200000;
  EXPECT_EQ("D:\\ELEVEN\\VEL123456", GetCartFileStem(123456));
}

TEST_F(LoadCartInfoTest, NotesAreRichTextBeforePlain) {
  OpenStore(20);
  bool exists = true;
  EXPECT_EQ(PartEntry(1).Path + "\\VEL00007.RTF", GetCartNotesFile(7, exists));
  EXPECT_FALSE(exists);
  folder().WriteFile("part1/VEL00007.TXT", "x");
  EXPECT_EQ(PartEntry(1).Path + "\\VEL00007.TXT", GetCartNotesFile(7, exists));
  EXPECT_TRUE(exists);
  folder().WriteFile("part1/VEL00007.RTF", "");
  EXPECT_EQ(PartEntry(1).Path + "\\VEL00007.RTF", GetCartNotesFile(7, exists));
  EXPECT_TRUE(exists);
  EXPECT_EQ("", GetCartNotesFile(21, exists));
  EXPECT_TRUE(exists);
  exists = false;
  EXPECT_EQ("", GetCartNotesFile(0, exists));
  EXPECT_FALSE(exists);
}

}  // namespace
}  // namespace logchecker
