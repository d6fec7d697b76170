// The pictures of a note.
#pragma once

#include <QImage>

#include "notes/TextPicture.h"

namespace logchecker {

// Of one note's pictures together; a pixel takes up to eight bytes of memory.
inline constexpr qint64 kMostPicturePixels = qint64{16} * 1024 * 1024;

class NotePictures {
 public:
  // A null image where it is none, or would pass the limit.
  QImage Decode(const TextPicture& picture);
  // Whether a picture was left out for the limit.
  bool IsCut() const { return cut_; }

 private:
  qint64 pixelsLeft_ = kMostPicturePixels;
  bool cut_ = false;
};

// As large as it is to be shown, in pixels.
QSizeF NotePictureSize(const TextPicture& picture, const QImage& image);

}  // namespace logchecker
