// The cart record on disk, its form in memory, and the two conversions.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>

namespace logchecker {

inline constexpr size_t kCartRecordLength = 300;
inline constexpr size_t kLineHeadLength = 20;
inline constexpr size_t kLineTailLength = 30;
inline constexpr size_t kLineLength = kLineHeadLength + kLineTailLength;

// 300 bytes, little-endian, without gaps. Texts are in the station's code page. The Aux fields have
// no meaning here; the carried ones must survive both conversions, the others (160, 198, 200) are
// dropped on reading and zero in a blank record.
#pragma pack(push, 1)
struct CartRecord {
  std::array<char, kLineHeadLength> Line1Head;  // characters 1 to 20 of a line, space padded
  std::array<char, kLineHeadLength> Line2Head;
  std::array<char, kLineHeadLength> Line3Head;
  int32_t BackColor;  // 0x00BBGGRR, or a system colour with the top bit set
  int32_t ForeColor;
  int16_t Aux68;
  std::array<char, kLineTailLength> Line1Tail;  // characters 21 to 50; ends at its first NUL
  std::array<char, kLineTailLength> Line2Tail;
  std::array<char, kLineTailLength> Line3Tail;
  std::array<char, 24> Aux160;
  int32_t Aux184;
  int16_t Aux188;
  int32_t Aux190;
  int32_t Aux194;
  int16_t Aux198;
  int16_t Aux200;
  std::array<int16_t, 5> Aux202;
  std::array<std::array<unsigned char, 8>, 5> Aux212;
  std::array<int16_t, 5> Aux252;
  int32_t Aux262;
  int32_t Aux266;
  float Length;       // seconds; what the check adds up
  float TotalLength;  // seconds of audio; -1 marks an unused cart
  float StartPoint;   // seconds; the played stretch
  float EndPoint;
  float PlayLength;  // seconds; above 0 means that the cart holds audio
  int32_t Aux290;
  int32_t Aux294;
  int16_t Aux298;
};
#pragma pack(pop)

static_assert(sizeof(CartRecord) == kCartRecordLength);
static_assert(offsetof(CartRecord, BackColor) == 60);
static_assert(offsetof(CartRecord, Line1Tail) == 70);
static_assert(offsetof(CartRecord, Aux160) == 160);
static_assert(offsetof(CartRecord, Aux188) == 188);
static_assert(offsetof(CartRecord, Aux198) == 198);
static_assert(offsetof(CartRecord, Aux212) == 212);
static_assert(offsetof(CartRecord, Aux252) == 252);
static_assert(offsetof(CartRecord, Length) == 270);
static_assert(offsetof(CartRecord, PlayLength) == 286);
static_assert(offsetof(CartRecord, Aux298) == 298);
static_assert(std::is_trivially_copyable_v<CartRecord>);
static_assert(std::endian::native == std::endian::little, "the record is read as it lies on disk");
static_assert(sizeof(float) == 4);

// A description line: exactly 50 characters, space padded.
using CartLine = std::array<char, kLineLength>;

// One cart in memory; a plain value.
struct CartInfo {
  CartLine Line1;
  CartLine Line2;
  CartLine Line3;
  int32_t BackColor;
  int32_t ForeColor;
  int16_t Aux68;
  int32_t Aux190;
  int32_t Aux194;
  std::array<int16_t, 5> Aux202;
  std::array<std::array<unsigned char, 8>, 5> Aux212;
  std::array<int16_t, 5> Aux252;
  int32_t Aux262;
  int32_t Aux266;
  float Length;
  float TotalLength;
  float StartPoint;
  float EndPoint;
  float PlayLength;
  int32_t Aux290;
  int32_t Aux294;
  int16_t Aux298;
  int32_t Aux184;
  int16_t Aux188;
};

void CartInfoFromRecord(CartInfo& info, const CartRecord& record);

// `Aux160`, `Aux198` and `Aux200` come out as zero.
void CartRecordFromInfo(CartRecord& record, const CartInfo& info);

// The three lines joined for display, stored in `text` and returned: run together as they stand
// (150 characters), or with `tidy` without the padding and with one space between them, but none
// behind a line that fills all its 50 places, since its text may run over into the next.
std::string GetCartDescription(const CartInfo& info, bool tidy, std::string& text);

}  // namespace logchecker
