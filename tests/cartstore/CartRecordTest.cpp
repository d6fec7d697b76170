#include "cartstore/CartRecord.h"

#include <gtest/gtest.h>

#include <cstring>

#include "cartstore/BlankCart.h"

namespace logchecker {
namespace {

std::string Text(const CartLine& line) { return {line.data(), line.size()}; }

CartRecord FromBytes(const std::array<unsigned char, kCartRecordLength>& bytes) {
  CartRecord record;
  std::memcpy(&record, bytes.data(), bytes.size());
  return record;
}

std::array<unsigned char, kCartRecordLength> BlankBytes() {
  std::array<unsigned char, kCartRecordLength> bytes{};
  std::memset(bytes.data(), ' ', 60);
  std::memset(bytes.data() + 70, ' ', 90);
  return bytes;
}

TEST(CartRecord, NumbersAreReadAtTheirOffsets) {
  auto bytes = BlankBytes();
  const auto put = [&](size_t offset, std::initializer_list<unsigned char> value) {
    std::copy(value.begin(), value.end(), bytes.begin() + static_cast<long>(offset));
  };
  put(60, {0x0F, 0x00, 0x00, 0x80});
  put(64, {1, 2, 3, 4});
  put(68, {0x34, 0x12});
  put(184, {1, 0, 0, 0});
  put(188, {2, 0});
  put(190, {3, 0, 0, 0});
  put(194, {4, 0, 0, 0});
  put(202, {5, 0, 6, 0, 7, 0, 8, 0, 9, 0});
  put(212, {11, 12});
  put(251, {13});
  put(252, {14, 0});
  put(262, {15, 0, 0, 0});
  put(266, {16, 0, 0, 0});
  put(270, {0, 0, 0xF0, 0x41});  // 30.0
  put(274, {0, 0, 0x80, 0xBF});  // -1.0
  put(278, {0, 0, 0x80, 0x3F});
  put(282, {0, 0, 0x00, 0x40});
  put(286, {0, 0, 0x40, 0x40});
  put(290, {17, 0, 0, 0});
  put(294, {18, 0, 0, 0});
  put(298, {19, 0});
  CartInfo info;
  CartInfoFromRecord(info, FromBytes(bytes));
  EXPECT_EQ(static_cast<int32_t>(0x8000000FU), info.BackColor);
  EXPECT_EQ(0x04030201, info.ForeColor);
  EXPECT_EQ(0x1234, info.Aux68);
  EXPECT_EQ(1, info.Aux184);
  EXPECT_EQ(2, info.Aux188);
  EXPECT_EQ(3, info.Aux190);
  EXPECT_EQ(4, info.Aux194);
  EXPECT_EQ((std::array<int16_t, 5>{5, 6, 7, 8, 9}), info.Aux202);
  EXPECT_EQ(11, info.Aux212[0][0]);
  EXPECT_EQ(12, info.Aux212[0][1]);
  EXPECT_EQ(13, info.Aux212[4][7]);
  EXPECT_EQ(14, info.Aux252[0]);
  EXPECT_EQ(15, info.Aux262);
  EXPECT_EQ(16, info.Aux266);
  EXPECT_EQ(30.0F, info.Length);
  EXPECT_EQ(-1.0F, info.TotalLength);
  EXPECT_EQ(1.0F, info.StartPoint);
  EXPECT_EQ(2.0F, info.EndPoint);
  EXPECT_EQ(3.0F, info.PlayLength);
  EXPECT_EQ(17, info.Aux290);
  EXPECT_EQ(18, info.Aux294);
  EXPECT_EQ(19, info.Aux298);
}

// The texts of one line each, as they lie in a record with nothing else in it.
struct LineOnDisk {
  size_t head;
  size_t tail;
  std::string text;
};
const LineOnDisk kLines[] = {
    {0, 70, std::string(20, 'a') + std::string(30, 'A')},
    {20, 100, std::string(20, 'b') + std::string(30, 'B')},
    {40, 130, std::string(20, 'c') + std::string(30, 'C')},
};

TEST(CartRecord, EachLineIsReadAndWrittenAtItsOffsets) {
  auto bytes = BlankBytes();
  for (const LineOnDisk& line : kLines) {
    std::memcpy(bytes.data() + line.head, line.text.data(), 20);
    std::memcpy(bytes.data() + line.tail, line.text.data() + 20, 30);
  }
  CartInfo info;
  CartInfoFromRecord(info, FromBytes(bytes));
  EXPECT_EQ(kLines[0].text, Text(info.Line1));
  EXPECT_EQ(kLines[1].text, Text(info.Line2));
  EXPECT_EQ(kLines[2].text, Text(info.Line3));
  CartRecord record;
  CartRecordFromInfo(record, info);
  EXPECT_EQ(0, std::memcmp(bytes.data(), &record, sizeof record));
}

TEST(CartRecord, ATailEndsAtItsFirstNulAndAHeadDoesNot) {
  struct Case {
    std::string head;
    std::string tail;
    std::string line;
  };
  const Case cases[] = {
      {std::string(20, 'H'), std::string(30, 'T'), std::string(20, 'H') + std::string(30, 'T')},
      {std::string(20, 'H'), std::string(30, '\0'), std::string(20, 'H') + std::string(30, ' ')},
      {std::string(20, 'H'), std::string("AB\0CD", 5) + std::string(25, 'x'),
       std::string(20, 'H') + "AB" + std::string(28, ' ')},
      {std::string("A\0B", 3) + std::string(17, ' '), std::string(30, ' '),
       std::string("A\0B", 3) + std::string(47, ' ')},
  };
  for (const Case& row : cases) {
    auto bytes = BlankBytes();
    std::memcpy(bytes.data() + 20, row.head.data(), row.head.size());
    std::memcpy(bytes.data() + 100, row.tail.data(), row.tail.size());
    CartInfo info;
    CartInfoFromRecord(info, FromBytes(bytes));
    EXPECT_EQ(row.line, Text(info.Line2));
    EXPECT_EQ(std::string(50, ' '), Text(info.Line1));
    EXPECT_EQ(std::string(50, ' '), Text(info.Line3));
  }
}

TEST(CartRecord, TheBlankCartIsTheSameInBothForms) {
  InitialiseBlankCart();
  EXPECT_EQ(-1.0F, gBlankCartInfo.TotalLength);
  EXPECT_EQ(-1.0F, gBlankCartInfo.PlayLength);
  EXPECT_EQ(0.0F, gBlankCartInfo.Length);
  EXPECT_EQ(0.0F, gBlankCartInfo.StartPoint);
  EXPECT_EQ(0.0F, gBlankCartInfo.EndPoint);
  EXPECT_EQ(std::string(50, ' '), Text(gBlankCartInfo.Line3));
  EXPECT_EQ(static_cast<int32_t>(0x8000000FU), gBlankCartRecord.BackColor);
  EXPECT_EQ(static_cast<int32_t>(0x80000012U), gBlankCartRecord.ForeColor);
  auto bytes = BlankBytes();
  CartRecord plain = FromBytes(bytes);
  plain.BackColor = gBlankCartRecord.BackColor;
  plain.ForeColor = gBlankCartRecord.ForeColor;
  plain.TotalLength = -1.0F;
  plain.PlayLength = -1.0F;
  EXPECT_EQ(0, std::memcmp(&plain, &gBlankCartRecord, sizeof plain));
}

TEST(GetCartDescription, JoinsTheLinesAsTheyStandOrTidily) {
  struct Case {
    std::string line1, line2, line3;
    std::string tidy;
  };
  const std::string full(50, 'F');
  const Case cases[] = {
      {"ABC", "", "DEF", "ABC DEF"},
      {"", "", "", ""},
      {" ABC ", " D", "", "ABC D"},
      {full, "REST", "", full + "REST"},
      {full, full, full, full + full + full},
      {"A", full, "B", "A " + full + "B"},
      {"", full, "", full},
  };
  for (const Case& row : cases) {
    CartInfo info = gBlankCartInfo;
    std::string whole;
    const std::pair<CartLine*, const std::string*> lines[] = {
        {&info.Line1, &row.line1}, {&info.Line2, &row.line2}, {&info.Line3, &row.line3}};
    for (const auto& [line, text] : lines) {
      line->fill(' ');
      std::copy(text->begin(), text->end(), line->begin());
      whole += Text(*line);
    }
    std::string stored;
    EXPECT_EQ(row.tidy, GetCartDescription(info, true, stored));
    EXPECT_EQ(row.tidy, stored);
    EXPECT_EQ(whole, GetCartDescription(info, false, stored));
    EXPECT_EQ(whole, stored);
    EXPECT_EQ(150U, stored.size());
  }
}

}  // namespace
}  // namespace logchecker
