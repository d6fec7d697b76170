#include "notes/ui/NotePictures.h"

#include <QBuffer>
#include <QImageReader>

#include "common/ui/Twips.h"
#include "notes/ui/NoteFormats.h"

namespace logchecker {

namespace {

constexpr double kWidest = 31680;    // twips
constexpr double kWholeScale = 100;  // per cent

// No other reader may look at the bytes: some would follow what they find in them.
const char* FormatOf(PictureKind kind) {
  switch (kind) {
    case PictureKind::kPng:
      return "png";
    case PictureKind::kJpeg:
      return "jpg";
    default:
      return "bmp";
  }
}

double LengthOf(int32_t goal, int32_t scale, int pixels) {
  const double natural = goal > 0 ? goal : ToTwips(pixels);
  const double twips = natural * (scale > 0 ? scale : kWholeScale) / kWholeScale;
  return NotePixels(qRound(qBound<double>(kTwipsPerPixel, twips, kWidest)));
}

}  // namespace

QImage NotePictures::Decode(const TextPicture& picture) {
  const std::string file = PictureFile(picture);
  QByteArray bytes = QByteArray::fromRawData(file.data(), static_cast<qsizetype>(file.size()));
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, FormatOf(picture.kind));
  reader.setAutoDetectImageFormat(false);
  const QSize size = reader.size();
  if (!size.isValid() || size.isEmpty()) return {};
  const qint64 pixels = qint64{size.width()} * size.height();
  if (pixels > pixelsLeft_) {
    cut_ = true;
    return {};
  }
  pixelsLeft_ -= pixels;
  return reader.read();
}

QSizeF NotePictureSize(const TextPicture& picture, const QImage& image) {
  return {LengthOf(picture.width, picture.scaleX, image.width()),
          LengthOf(picture.height, picture.scaleY, image.height())};
}

}  // namespace logchecker
