// Pictures in rich text.
#include "notes/TextPicture.h"

#include <gtest/gtest.h>

#include "notes/RichText.h"

namespace logchecker {
namespace {

std::vector<TextPicture> PicturesOf(const std::string& body) {
  return ReadRichText("{\\rtf1 " + body + "}").pictures;
}

TEST(TextPictureTest, KindsSizesAndData) {
  const auto pictures = PicturesOf(
      "{\\pict\\pngblip\\picwgoal1440\\pichgoal720\\picscalex50\\picscaley200 89 50\r\n4e47}"
      "{\\*\\shppict{\\pict{\\*\\picprop x}\\jpegblip\\bin3 }}a}}"
      "{\\nonshppict{\\pict\\pngblip 01}}{\\pict\\dibitmap0 ABcd0}");
  ASSERT_EQ(pictures.size(), 3U);
  EXPECT_EQ(pictures[0].kind, PictureKind::kPng);
  EXPECT_EQ(pictures[0].bytes, "\x89PNG");
  EXPECT_EQ(pictures[0].width, 1440);
  EXPECT_EQ(pictures[0].height, 720);
  EXPECT_EQ(pictures[0].scaleX, 50);
  EXPECT_EQ(pictures[0].scaleY, 200);
  EXPECT_EQ(pictures[1].kind, PictureKind::kJpeg);
  EXPECT_EQ(pictures[1].bytes, "}}a");
  EXPECT_EQ(pictures[2].kind, PictureKind::kBitmap);
  EXPECT_EQ(pictures[2].bytes, "\xAB\xCD") << "half a byte is none";
  EXPECT_EQ(pictures[2].scaleX, 100);
}

TEST(TextPictureTest, APictureHasItsPlaceAndItsFormat) {
  const RichTextDocument document = ReadRichText("{\\rtf1 a\\b{\\pict\\pngblip 00}c\\par}");
  const auto& runs = document.paragraphs.at(0).runs;
  ASSERT_EQ(runs.size(), 3U);
  EXPECT_EQ(runs[0].text, "a");
  EXPECT_EQ(runs[1].picture, 0);
  EXPECT_TRUE(runs[1].bold);
  EXPECT_EQ(runs[2].text, "c");
  EXPECT_EQ(runs[2].picture, -1);
  EXPECT_EQ(document.PlainText(), "ac");
}

TEST(TextPictureTest, WhatIsNotShownLeavesNothing) {
  for (const char* body :
       {"{\\pict\\wmetafile8 00}", "{\\pict\\emfblip 00}", "{\\pict\\macpict 00}",
        "{\\pict\\pmmetafile1 00}", "{\\pict\\wbitmap0 00}", "{\\pict\\pngblip }", "{\\pict 00}",
        "{\\v{\\pict\\pngblip 00}}", "{\\info{\\pict\\pngblip 00}}",
        "{\\fonttbl{\\pict\\pngblip 00}}", "{\\pict\\pngblip\\wmetafile8 00}"}) {
    EXPECT_TRUE(PicturesOf(body).empty()) << body;
  }
}

TextPicture Bitmap(const std::string& bytes) {
  TextPicture picture;
  picture.kind = PictureKind::kBitmap;
  picture.bytes = bytes;
  return picture;
}

// A bitmap's header; the rest of it is zeros.
std::string Header(uint32_t size, uint16_t bits, uint32_t compression, uint32_t colours) {
  std::string bytes(size, '\0');
  const auto put = [&](size_t place, uint32_t number, size_t length) {
    for (size_t i = 0; i < length && place + i < bytes.size(); ++i) {
      bytes[place + i] = static_cast<char>(number >> (8 * i));
    }
  };
  put(0, size, 4);
  put(size == 12 ? 10 : 14, bits, 2);
  if (size > 12) put(16, compression, 4);
  if (size > 12) put(32, colours, 4);
  return bytes;
}

TEST(TextPictureTest, ABitmapGetsTheHeaderOfAFile) {
  const struct {
    const char* what;
    std::string header;
    unsigned place;
  } cases[] = {
      {"true colour", Header(40, 24, 0, 0), 14 + 40},
      {"a palette of its bits", Header(40, 4, 0, 0), 14 + 40 + 64},
      {"a shorter palette", Header(40, 8, 0, 10), 14 + 40 + 40},
      {"masks", Header(40, 16, 3, 0), 14 + 40 + 12},
      {"a long header", Header(124, 32, 3, 0), 14 + 124},
      {"the oldest header", Header(12, 8, 0, 0), 14 + 12 + 768},
  };
  for (const auto& row : cases) {
    const std::string file = PictureFile(Bitmap(row.header + std::string(1000, 'x')));
    ASSERT_GT(file.size(), 14U) << row.what;
    EXPECT_EQ(file.substr(0, 2), "BM") << row.what;
    const auto place =
        static_cast<unsigned char>(file[10]) + 256U * static_cast<unsigned char>(file[11]);
    EXPECT_EQ(place, row.place) << row.what;
    EXPECT_EQ(file.substr(14), row.header + std::string(1000, 'x')) << row.what;
  }
}

TEST(TextPictureTest, ABrokenBitmapIsNone) {
  for (const std::string& bytes :
       {std::string(), std::string(11, '\0'), std::string(40, '\0'), Header(40, 24, 0, 0),
        Header(40, 8, 0, 257) + std::string(5000, 'x'),
        std::string("\xFF\xFF\xFF\xFF") + Header(40, 24, 0, 0),
        Header(20, 24, 0, 0) + std::string(100, 'x'),
        Header(40, 8, 0, 0) + std::string(1024, 'x')}) {
    EXPECT_EQ(PictureFile(Bitmap(bytes)), "") << bytes.size();
  }
}

TEST(TextPictureTest, APictureOfTooManyPassesIsNotDrawn) {
  const auto scans = [](int count) {
    TextPicture picture;
    picture.kind = PictureKind::kJpeg;
    for (int i = 0; i < count; ++i) picture.bytes += "\xFF\xDA";
    return PictureFile(picture).empty();
  };
  EXPECT_FALSE(scans(100));
  EXPECT_TRUE(scans(101));
}

}  // namespace
}  // namespace logchecker
