#include "notes/PictureReader.h"

#include <utility>

#include "notes/RichTextTokens.h"

namespace logchecker {

void PictureReader::Begin() {
  picture_ = TextPicture();
  half_ = -1;
}

void PictureReader::Take(RichTextWord word, int32_t number) {
  switch (word) {
    case RichTextWord::kPng:
      picture_.kind = PictureKind::kPng;
      break;
    case RichTextWord::kJpeg:
      picture_.kind = PictureKind::kJpeg;
      break;
    case RichTextWord::kBitmap:
      picture_.kind = PictureKind::kBitmap;
      break;
    case RichTextWord::kOtherPicture:
      picture_.kind = PictureKind::kNone;
      break;
    case RichTextWord::kPictureWidth:
      picture_.width = number;
      break;
    case RichTextWord::kPictureHeight:
      picture_.height = number;
      break;
    case RichTextWord::kPictureScaleX:
      picture_.scaleX = number;
      break;
    case RichTextWord::kPictureScaleY:
      picture_.scaleY = number;
      break;
    default:
      break;
  }
}

void PictureReader::TakeDigit(unsigned char character) {
  const int digit = HexDigit(static_cast<char>(character));
  if (digit < 0) return;
  if (half_ < 0) {
    half_ = digit;
  } else {
    picture_.bytes += static_cast<char>(std::exchange(half_, -1) * 16 + digit);
  }
}

std::optional<TextPicture> PictureReader::End() {
  if (picture_.kind == PictureKind::kNone || picture_.bytes.empty()) return std::nullopt;
  return std::exchange(picture_, {});
}

}  // namespace logchecker
