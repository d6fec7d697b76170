#include "cartbrowser/FoundCarts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <utility>
#include <vector>

#include "cartstore/BlankCart.h"
#include "tests/support/StationTest.h"

namespace logchecker {
namespace {

using ::testing::ElementsAre;

class FoundCartsTest : public StationTest {
 protected:
  size_t Add(int32_t number, std::string_view line1, float length = 30) {
    CartInfo info;
    CartInfoFromRecord(info, RecordOfLength(length, line1));
    return found.Add(number, info);
  }
  std::vector<int32_t> Numbers() const {
    std::vector<int32_t> numbers;
    for (size_t row = 0; row < found.Count(); ++row) numbers.push_back(found.Row(row).Number());
    return numbers;
  }

  FoundCarts found;
};

TEST_F(FoundCartsTest, ColumnsAreAsTabled) {
  const auto headers = FoundColumnHeaders(5895);
  const FoundColumnHeader expected[] = {{"cart", "", 0},           {"cartno", "Cart", 700},
                                        {"line1", "Line 1", 1383}, {"line2", "Line 2", 1383},
                                        {"line3", "Line 3", 1383}, {"length", "Length", 700}};
  for (size_t column = 0; column < kFoundColumnCount; ++column) {
    EXPECT_STREQ(expected[column].key, headers[column].key);
    EXPECT_STREQ(expected[column].caption, headers[column].caption);
    EXPECT_EQ(expected[column].width, headers[column].width);
  }
}

TEST_F(FoundCartsTest, TheWidthOfALineIsRoundedBeforeAndAfterItIsDivided) {
  const std::pair<double, int32_t> cases[] = {{5895, 1383}, {5896, 1384}, {5896.5, 1384},
                                              {1749.5, 1},  {1746.4, 0},  {10000, 2752}};
  for (const auto& [listWidth, width] : cases) {
    EXPECT_EQ(width, FoundColumnHeaders(listWidth)[kFoundLine2].width) << listWidth;
  }
}

TEST_F(FoundCartsTest, ARowHoldsTheNumberTwiceTheTrimmedLinesAndTheLength) {
  CartInfo info = gBlankCartInfo;
  info.Line1[3] = 'A';
  info.Line1[5] = 'B';
  info.Line3[49] = 'Z';
  info.Length = 90;
  info.TotalLength = 500;
  EXPECT_EQ(0U, found.Add(42, info));
  const FoundCart& row = found.Row(0);
  EXPECT_EQ("c42", row.key);
  EXPECT_THAT(row.texts, ElementsAre("000042", "42", "A B", "", "Z", "1:30"));
  EXPECT_EQ(42, row.Number());
}

TEST_F(FoundCartsTest, ALongNumberIsNotCut) {
  Add(1234567, "x");
  EXPECT_EQ("1234567", found.Row(0).texts[kFoundSortNumber]);
  EXPECT_EQ("c1234567", found.Row(0).key);
}

TEST_F(FoundCartsTest, LengthsAreShownWithoutHundredthsAndLeadingZeros) {
  const std::pair<float, const char*> cases[] = {{0, ""},
                                                 {20, ":20"},
                                                 {5, ": 5"},
                                                 {90, "1:30"},
                                                 {59.6F, "1:00"},
                                                 {3725, "1:02:05"},
                                                 {std::numeric_limits<float>::quiet_NaN(), "--:--"},
                                                 {std::numeric_limits<float>::infinity(), "--:--"}};
  for (const auto& [length, text] : cases) {
    found.Clear();
    Add(1, "x", length);
    EXPECT_EQ(text, found.Row(0).texts[kFoundLength]) << length;
  }
}

TEST_F(FoundCartsTest, NoneFoundIsARowWithoutACart) {
  found.AddNoneFound();
  EXPECT_THAT(found.Row(0).texts, ElementsAre("0", "", "No carts found.", "", "", ""));
  EXPECT_EQ(0, found.Row(0).Number());
}

TEST_F(FoundCartsTest, UnsortedRowsStandAsTheyWereFound) {
  EXPECT_EQ(0U, Add(30, "x"));
  EXPECT_EQ(1U, Add(2, "x"));
  EXPECT_EQ(2U, Add(100, "x"));
  EXPECT_THAT(Numbers(), ElementsAre(30, 2, 100));
  EXPECT_FALSE(found.SortedColumn().has_value());
}

TEST_F(FoundCartsTest, TheNumberSortsAsANumberAndASecondClickTurnsItRound) {
  for (const int32_t number : {30, 2, 100}) Add(number, "x");
  found.ClickHeader(kFoundNumber);
  EXPECT_THAT(Numbers(), ElementsAre(2, 30, 100));
  EXPECT_EQ(kFoundNumber, found.SortedColumn());
  found.ClickHeader(kFoundNumber);
  EXPECT_THAT(Numbers(), ElementsAre(100, 30, 2));
  EXPECT_TRUE(found.Descending());
  found.ClickHeader(kFoundNumber);
  EXPECT_THAT(Numbers(), ElementsAre(2, 30, 100));
}

TEST_F(FoundCartsTest, OtherColumnsSortByTheirTextWithoutRegardToCase) {
  Add(1, "beta");
  Add(2, "Alpha");
  Add(3, "CAF\xE9");
  Add(4, "Caf\xC9");
  Add(5, "alpha");
  found.ClickHeader(kFoundLine1);
  EXPECT_THAT(Numbers(), ElementsAre(2, 5, 1, 3, 4));
}

TEST_F(FoundCartsTest, LengthsSortAsTexts) {
  Add(1, "x", 9);    // ": 9"
  Add(2, "x", 600);  // "10:00"
  Add(3, "x", 120);  // "2:00"
  found.ClickHeader(kFoundLength);
  EXPECT_THAT(Numbers(), ElementsAre(2, 3, 1));
}

TEST_F(FoundCartsTest, AClickOnANewColumnKeepsTheOrder) {
  Add(1, "b");
  Add(2, "c");
  Add(3, "a");
  found.ClickHeader(kFoundNumber);
  found.ClickHeader(kFoundNumber);
  found.ClickHeader(kFoundLine1);
  EXPECT_THAT(Numbers(), ElementsAre(2, 1, 3));
  found.ClickHeader(kFoundLine1);
  EXPECT_THAT(Numbers(), ElementsAre(3, 1, 2));
  found.ClickHeader(kFoundNumber);
  EXPECT_THAT(Numbers(), ElementsAre(1, 2, 3));
}

TEST_F(FoundCartsTest, ASortedListTakesNewRowsInWhereTheyBelong) {
  found.ClickHeader(kFoundLine1);
  EXPECT_EQ(0U, Add(1, "m"));
  EXPECT_EQ(1U, Add(2, "z"));
  EXPECT_EQ(0U, Add(3, "a"));
  EXPECT_EQ(2U, Add(4, "M"));
  EXPECT_THAT(Numbers(), ElementsAre(3, 1, 4, 2));
}

TEST_F(FoundCartsTest, SortingOutlivesTheRows) {
  found.ClickHeader(kFoundNumber);
  found.ClickHeader(kFoundNumber);
  Add(1, "x");
  found.Clear();
  EXPECT_EQ(0U, found.Count());
  Add(1, "x");
  Add(2, "x");
  EXPECT_THAT(Numbers(), ElementsAre(2, 1));
}

TEST_F(FoundCartsTest, TheSelectedCartStaysSelectedWhenRowsMove) {
  for (const int32_t number : {30, 2, 100}) Add(number, "x");
  EXPECT_FALSE(found.SelectedRow().has_value());
  found.Select(0);
  found.ClickHeader(kFoundNumber);
  EXPECT_EQ(1U, found.SelectedRow());
  Add(1, "x");
  EXPECT_EQ(2U, found.SelectedRow());
  found.Select(std::nullopt);
  EXPECT_FALSE(found.SelectedRow().has_value());
  found.Select(99);
  EXPECT_FALSE(found.SelectedRow().has_value());
  found.Select(0);
  found.Clear();
  EXPECT_FALSE(found.SelectedRow().has_value());
}

}  // namespace
}  // namespace logchecker
