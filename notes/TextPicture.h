// A picture inside rich text, as its file has it.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

enum class PictureKind { kNone, kPng, kJpeg, kBitmap };

struct TextPicture {
  PictureKind kind = PictureKind::kNone;
  std::string bytes;  // of a bitmap without the header of a file
  int32_t width = 0;  // twips before the scale; 0 follows its pixels
  int32_t height = 0;
  int32_t scaleX = 100;  // percent
  int32_t scaleY = 100;
};

// The picture as the bytes of a file of its kind. Empty where they are none, or where drawing it
// would take out of all proportion to its size.
std::string PictureFile(const TextPicture& picture);

}  // namespace logchecker
