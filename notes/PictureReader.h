// One picture's group of rich text.
#pragma once

#include <optional>
#include <string_view>

#include "notes/RichTextWords.h"
#include "notes/TextPicture.h"

namespace logchecker {

class PictureReader {
 public:
  void Begin();
  // Takes a word that concerns pictures; any other does nothing.
  void Take(RichTextWord word, int32_t number);
  // A character of the data in hexadecimal; others are passed over.
  void TakeDigit(unsigned char character);
  void TakeBinary(std::string_view data) { picture_.bytes += data; }
  // The picture; nothing where it is of a kind that is not shown, or has no data.
  std::optional<TextPicture> End();

 private:
  TextPicture picture_;
  int half_ = -1;  // the first digit of a byte
};

}  // namespace logchecker
