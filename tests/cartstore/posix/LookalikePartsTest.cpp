// A store's names that fit two entries, where letter case tells them apart.
#include <gtest/gtest.h>

#include <filesystem>

#include "cartstore/Velmar_Cart_Routines.h"
#include "common/Lookalikes.h"
#include "common/PathText.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class LookalikePartsTest : public StationTest {
 protected:
  // Both parts lie in "CARTS", which could be "Carts" or "carts".
  LookalikePartsTest() {
    MakeStore(1020);
    std::filesystem::create_directory(Path("carts"));
    std::filesystem::create_directory(Path("Carts"));
    for (const int16_t part : {1, 2}) PartEntry(part).Path = Path("CARTS");
  }
  std::string Told(const std::string& path, const std::string& taken,
                   const std::string& other) const {
    return "The name \"" + ShownPath(path) +
           "\" fits two entries that differ only in capital letters:\n\"" + Path(taken) +
           "\" is used, and \"" + Path(other) + "\" is not.\nPlease rename one of them.";
  }
};

TEST_F(LookalikePartsTest, TheOpeningTellsOnceWhichOneIsTaken) {
  ASSERT_EQ(0, OpenAudiowall(0, true));
  EXPECT_TRUE(ui.messages.empty()) << "quietly";
  EXPECT_TRUE(folder().Exists("Carts/Carts1.lst"));
  EXPECT_FALSE(folder().Exists("carts/Carts1.lst"));
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(0, OpenAudiowall(0, false));
    ASSERT_EQ(1U, ui.messages.size());
  }
  EXPECT_EQ(Told(Path("CARTS") + "\\Carts1.lst", "Carts", "carts"), ui.messages[0].text);
  EXPECT_EQ(MessageIcon::kExclamation, ui.messages[0].icon);
  ForgetToldLookalikes();
  EXPECT_EQ(0, OpenAudiowall(0, false));
  EXPECT_EQ(2U, ui.messages.size());
}

TEST_F(LookalikePartsTest, ListFilesOfOneNameAreToldToo) {
  for (const int16_t part : {1, 2}) PartEntry(part).Path = Path("carts");
  folder().WriteFile("carts/CARTS1.LST", "");
  folder().WriteFile("carts/carts1.lst", "");
  ASSERT_EQ(0, OpenAudiowall(1, false));
  ASSERT_EQ(1U, ui.messages.size());
  EXPECT_EQ(Told(Path("carts") + "\\Carts1.lst", "carts/CARTS1.LST", "carts/carts1.lst"),
            ui.messages[0].text);
}

TEST_F(LookalikePartsTest, ACartIsReadWithoutALookAtTheNames) {
  ASSERT_EQ(0, OpenAudiowall(0, true));
  CartInfo info;
  EXPECT_EQ(0, LoadCartInfo(info, 5));
  EXPECT_TRUE(ui.messages.empty());
}

}  // namespace
}  // namespace logchecker
