#include "notes/TextPicture.h"

#include <cstddef>
#include <string_view>

namespace logchecker {

namespace {

constexpr size_t kFileHeader = 14;
constexpr uint32_t kCoreHeader = 12;  // the oldest kind of bitmap
constexpr uint32_t kInfoHeader = 40;
constexpr uint32_t kLongestHeader = 124;
constexpr uint32_t kBitFields = 3;  // three colour masks follow the header
constexpr uint32_t kMostPaletteBits = 8;
constexpr size_t kMostScans = 100;

uint32_t NumberAt(std::string_view bytes, size_t place, size_t size) {
  uint32_t number = 0;
  for (size_t i = size; i-- > 0;) {
    number = number << 8U | static_cast<unsigned char>(bytes[place + i]);
  }
  return number;
}

// Bytes from a bitmap's beginning to its pixels; 0 where it is none.
size_t PlaceOfPixels(std::string_view bytes) {
  if (bytes.size() < kCoreHeader) return 0;
  const uint32_t header = NumberAt(bytes, 0, 4);
  if (header > kLongestHeader || header > bytes.size()) return 0;
  if (header == kCoreHeader) {
    const uint32_t bits = NumberAt(bytes, 10, 2);
    return header + (bits <= kMostPaletteBits ? size_t{3} << bits : 0);
  }
  if (header < kInfoHeader) return 0;
  const uint32_t bits = NumberAt(bytes, 14, 2);
  uint32_t colours = NumberAt(bytes, 32, 4);
  if (colours == 0 && bits <= kMostPaletteBits) colours = 1U << bits;
  if (colours > 1U << kMostPaletteBits) return 0;
  const bool masks = header == kInfoHeader && NumberAt(bytes, 16, 4) == kBitFields;
  return header + size_t{4} * colours + (masks ? 12 : 0);
}

std::string BitmapFile(const std::string& bytes) {
  const size_t pixels = PlaceOfPixels(bytes);
  if (pixels == 0 || pixels >= bytes.size()) return {};
  std::string file = "BM";
  const auto add = [&](size_t number) {
    for (unsigned shift = 0; shift < 32; shift += 8) file += static_cast<char>(number >> shift);
  };
  add(kFileHeader + bytes.size());
  add(0);
  add(kFileHeader + pixels);
  return file + bytes;
}

// A picture may be drawn in many passes, each over the whole of it, that take a few bytes.
bool HasTooManyScans(std::string_view bytes) {
  constexpr std::string_view kScan = "\xFF\xDA";
  size_t scans = 0;
  for (size_t at = bytes.find(kScan); at != std::string_view::npos;
       at = bytes.find(kScan, at + 2)) {
    if (++scans > kMostScans) return true;
  }
  return false;
}

}  // namespace

std::string PictureFile(const TextPicture& picture) {
  switch (picture.kind) {
    case PictureKind::kPng:
      return picture.bytes;
    case PictureKind::kJpeg:
      return HasTooManyScans(picture.bytes) ? std::string() : picture.bytes;
    case PictureKind::kBitmap:
      return BitmapFile(picture.bytes);
    case PictureKind::kNone:
      break;
  }
  return {};
}

}  // namespace logchecker
