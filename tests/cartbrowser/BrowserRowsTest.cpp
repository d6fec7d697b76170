#include "cartbrowser/BrowserRows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>

#include "cartstore/AudiowallParts.h"
#include "cartstore/BlankCart.h"
#include "cartstore/OpenAudiowall.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

class BrowserRowsTest : public StationTest {};

// A frame with room for this many single rows, in hundredths of a row.
int32_t HeightOf(int32_t hundredths) { return 30 + kSingleRowHeight * hundredths / 100; }

TEST_F(BrowserRowsTest, APartOfARowIsRoundedAfterAWholeOneWasAdded) {
  const std::pair<int32_t, int16_t> cases[] = {{1000, 10}, {1001, 11}, {1030, 11}, {1070, 12},
                                               {1099, 12}, {1100, 11}, {100, 1},   {20, 1},
                                               {70, 2},    {0, 0}};
  for (const auto& [hundredths, rows] : cases) {
    EXPECT_EQ(rows, CountRows(HeightOf(hundredths), kSingleRowHeight, 0)) << hundredths;
  }
}

TEST_F(BrowserRowsTest, HalfARowGoesToTheEvenNumber) {
  EXPECT_EQ(12, CountRows(30 + 630 * 21 / 2, 630, 0));  // 10.5 and 1
  EXPECT_EQ(12, CountRows(30 + 630 * 23 / 2, 630, 0));  // 11.5 and 1
}

TEST_F(BrowserRowsTest, DoubleRowsAreHalfAsMany) {
  EXPECT_EQ(20, CountRows(30 + 20 * 315, kSingleRowHeight, 0));
  EXPECT_EQ(10, CountRows(30 + 20 * 315, kDoubleRowHeight, 0));
}

TEST_F(BrowserRowsTest, ThereAreNoMoreRowsThanCarts) {
  gNumberOfCarts = 25;
  const std::pair<float, int16_t> cases[] = {{0, 12}, {13, 12}, {14, 11},
                                             {24, 1}, {25, 0},  {99, 0}};
  for (const auto& [topOffset, rows] : cases) {
    EXPECT_EQ(rows, CountRows(HeightOf(1070), kSingleRowHeight, topOffset)) << topOffset;
  }
  gNumberOfCarts = 4;
  EXPECT_EQ(4, CountRows(HeightOf(1070), kSingleRowHeight, 0));
  // 10.7 rows fit the test and the 11.7 that they become don't.
  gNumberOfCarts = 11;
  EXPECT_EQ(11, CountRows(HeightOf(1070), kSingleRowHeight, 0));
}

TEST_F(BrowserRowsTest, AFrameWithoutRoomHasNoRows) {
  EXPECT_EQ(0, CountRows(-1000, kSingleRowHeight, 0));
  EXPECT_EQ(0, CountRows(30, kSingleRowHeight, 0));
}

TEST_F(BrowserRowsTest, RowsStandBelowEachOther) {
  RowPlace place = PlaceOfRow(1, 315, 855, 6000);
  EXPECT_EQ(15, place.Top);
  EXPECT_EQ(315, place.Height);
  EXPECT_EQ(15, place.ButtonLeft);
  EXPECT_EQ(885, place.PanelLeft);
  EXPECT_EQ(6000 - 30 - 885, place.PanelWidth);
  place = PlaceOfRow(3, 630, 855, 6000);
  EXPECT_EQ(2 * 630 + 15, place.Top);
  EXPECT_EQ(630, place.Height);
  EXPECT_EQ(0, PlaceOfRow(1, 315, 855, 100).PanelWidth);
}

// Every character is 100 twips wide.
std::string Fit(const std::string& text, int32_t maxWidth) {
  return text.substr(0, static_cast<size_t>(std::max(maxWidth, 0) / 100));
}

BrowserRow Read(int32_t cart, bool onThreeLines = false, int32_t panelWidth = 5120) {
  return ReadBrowserRow(cart, onThreeLines, panelWidth, Fit);
}

CartRecord ThreeLines() {
  CartInfo info;
  CartInfoFromRecord(info, RecordOfLength(30, " FIRST LINE"));
  info.Line2 = info.Line1;
  std::copy_n("SECOND", 6, info.Line2.begin());
  std::copy_n("THIRD", 5, info.Line3.begin());
  info.BackColor = 0x00123456;
  info.ForeColor = static_cast<int32_t>(0x80000008U);
  CartRecord record;
  CartRecordFromInfo(record, info);
  return record;
}

TEST_F(BrowserRowsTest, ARowShowsItsCartInTheCartsColours) {
  OpenStore(20);
  PutCart(7, ThreeLines());
  const BrowserRow row = Read(7);
  EXPECT_TRUE(row.Visible);
  EXPECT_EQ("7", row.Tag);
  EXPECT_EQ("7", row.ButtonCaption);
  EXPECT_EQ(0x8000000FU, row.ButtonColour);
  EXPECT_EQ(0x00123456, row.BackColor);
  EXPECT_EQ(0x80000008U, static_cast<uint32_t>(row.ForeColor));
  EXPECT_EQ("FIRST LINE SECOND LINE THIRD", row.Caption);
}

TEST_F(BrowserRowsTest, ADoubleRowHasEachLineOnItsOwn) {
  OpenStore(20);
  PutCart(7, ThreeLines());
  EXPECT_EQ("FIRST LINE\nSECOND LINE\nTHIRD", Read(7, true).Caption);
  EXPECT_EQ("\n\n", Read(8, true).Caption);
}

TEST_F(BrowserRowsTest, TextsAreCutToThePanelLessItsEdges) {
  OpenStore(20);
  PutCart(7, ThreeLines());
  EXPECT_EQ("FIRST", Read(7, false, 620).Caption);
  EXPECT_EQ("FIRST\nSECON\nTHIRD", Read(7, true, 620).Caption);
  EXPECT_EQ("", Read(7, false, 219).Caption);
  EXPECT_EQ("", Read(7, false, 0).Caption);
}

TEST_F(BrowserRowsTest, ARowIsSpokenWithItsNumberAndItsLinesInFull) {
  OpenStore(20);
  PutCart(7, ThreeLines());
  EXPECT_EQ("Cart 7, FIRST LINE, SECOND LINE, THIRD", Read(7).Spoken);
  EXPECT_EQ("Cart 7, FIRST LINE, SECOND LINE, THIRD", Read(7, true, 620).Spoken)
      << "nothing is cut";
  PutCart(7, RecordOfLength(30, "ONE LINE"));
  EXPECT_EQ("Cart 7, ONE LINE", Read(7).Spoken);
  // A line that fills its places may run on in the next.
  CartInfo info;
  CartInfoFromRecord(info, ThreeLines());
  info.Line1.fill('A');
  EXPECT_EQ("Cart 12, " + std::string(kLineLength, 'A') + "SECOND LINE, THIRD",
            SpokenRow(info, 12));
}

TEST_F(BrowserRowsTest, ThatACartIsNotInUseOrHasNoAudioIsSpoken) {
  OpenStore(20);
  EXPECT_EQ("Cart 7, not in use", Read(7).Spoken);
  PutCart(7, RecordOfLength(0, "SILENT"));
  EXPECT_EQ("Cart 7, SILENT, no audio", Read(7).Spoken);
  EXPECT_EQ("", Read(21).Spoken);
}

TEST_F(BrowserRowsTest, AnUnusedCartIsAnEmptyRowInTheBlankColours) {
  OpenStore(20);
  gBlankCartInfo.BackColor = 0x00111111;
  gBlankCartInfo.ForeColor = 0x00222222;
  const BrowserRow row = Read(7);
  EXPECT_TRUE(row.Visible);
  EXPECT_EQ("", row.Tag);
  EXPECT_EQ("7", row.ButtonCaption);
  EXPECT_EQ("", row.Caption);
  EXPECT_EQ(0x00111111, row.BackColor);
  EXPECT_EQ(0x00222222, row.ForeColor);
}

TEST_F(BrowserRowsTest, ACartWithoutAudioHasWordsButNoTag) {
  OpenStore(20);
  PutCart(7, RecordOfLength(0, "SILENT"));
  EXPECT_EQ("", Read(7).Tag);
  EXPECT_EQ("SILENT", Read(7).Caption);
}

TEST_F(BrowserRowsTest, ANumberOutsideTheStoreIsAHiddenRow) {
  OpenStore(20);
  gBlankCartInfo.BackColor = 0x00111111;
  for (const int32_t cart : {0, -5, 21}) {
    const BrowserRow row = Read(cart);
    EXPECT_FALSE(row.Visible) << cart;
    EXPECT_EQ("", row.Tag);
    EXPECT_EQ("", row.ButtonCaption);
    EXPECT_EQ("", row.Caption);
    EXPECT_EQ(0x00111111, row.BackColor);
  }
}

TEST_F(BrowserRowsTest, ACartThatCannotBeReadIsAnEmptyRow) {
  OpenStore(20);
  PutCart(7, 30.0F);
  os.script.FailNamed("Files.GetRecord", 0, kDeviceIoError);
  EXPECT_TRUE(Read(7).Visible);
  EXPECT_EQ("", Read(7).Caption);
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(BrowserRowsTest, ControlCharactersStayInACaption) {
  OpenStore(20);
  PutCart(7, RecordOfLength(30, std::string_view("A\0B\tC\nD", 7)));
  EXPECT_EQ(std::string("A\0B\tC\nD", 7), Read(7).Caption);
}

TEST_F(BrowserRowsTest, AFrameOfWholeRowsHasNoRowThatIsNotSeen) {
  OpenStore(1000);
  const std::pair<int32_t, int32_t> cases[] = {{30, 0},    {344, 0},     {345, 315}, {659, 315},
                                               {660, 630}, {3389, 3150}, {-500, 0},  {0, 0}};
  for (const auto& [room, rows] : cases) {
    EXPECT_EQ(rows + 30, HeightOfWholeRows(room, kSingleRowHeight)) << room;
  }
  EXPECT_EQ(30 + 630, HeightOfWholeRows(1289, kDoubleRowHeight));
  for (int32_t room = 345; room < 9000; room += 7) {
    const int32_t height = HeightOfWholeRows(room, kSingleRowHeight);
    EXPECT_LE(height, room);
    EXPECT_EQ((height - 30) / kSingleRowHeight, CountRows(height, kSingleRowHeight, 0)) << room;
  }
}

}  // namespace
}  // namespace logchecker
