// Rich text as plain runs. The reader takes any bytes: what it does not understand is skipped by
// the format's own rules, and it never fails.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace logchecker {

enum class TextAlignment { kLeft, kRight, kCentre, kJustified };

inline constexpr int32_t kAutomaticColour = -1;
inline constexpr int32_t kDefaultHalfPoints = 24;

struct TextRun {
  std::string text;  // UTF-8; a line feed is a line's end inside the paragraph
  std::string fontName;
  int32_t halfPoints = kDefaultHalfPoints;  // the font's size
  bool bold = false;
  bool italic = false;
  bool underline = false;
  int32_t colour = kAutomaticColour;  // 0x00BBGGRR
};

struct TextParagraph {
  TextAlignment alignment = TextAlignment::kLeft;
  int32_t leftIndent = 0;  // twips
  int32_t rightIndent = 0;
  int32_t firstLineIndent = 0;
  std::vector<TextRun> runs;
};

struct RichTextDocument {
  std::vector<TextParagraph> paragraphs;

  // The paragraphs' texts, joined by line feeds; UTF-8.
  std::string PlainText() const;
};

// No more than this is taken from a file: bytes of it, and characters of its text, of which a
// change of the format counts as 20 and a paragraph as 40. Groups nested deeper are passed over.
inline constexpr size_t kMostBytes = size_t{16} * 1024 * 1024;
inline constexpr size_t kMostCharacters = size_t{4} * 1024 * 1024;
inline constexpr size_t kDeepestGroup = 500;

bool IsRichText(std::string_view bytes);

// Rich text, or where the bytes are none, their lines as station text.
RichTextDocument ReadRichText(std::string_view bytes);

}  // namespace logchecker
