// Rich text as plain runs. The reader takes any bytes: what it does not understand is skipped by
// the format's own rules, and it never fails.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "notes/TextPicture.h"

namespace logchecker {

enum class TextAlignment { kLeft, kRight, kCentre, kJustified };
enum class TextScript { kNormal, kSuper, kSub };
enum class TextCaps { kNone, kAll, kSmall };
enum class TabKind { kLeft, kRight, kCentre, kDecimal };

inline constexpr int32_t kAutomaticColour = -1;
inline constexpr int32_t kDefaultHalfPoints = 24;
inline constexpr int32_t kDefaultTabDistance = 720;  // twips
inline constexpr int32_t kSingleLine = 240;

struct TextFormat {
  std::string fontName;
  int32_t halfPoints = kDefaultHalfPoints;  // the font's size
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  TextCaps caps = TextCaps::kNone;
  TextScript script = TextScript::kNormal;
  int32_t raise = 0;                     // half-points above the line; negative below it
  int32_t colour = kAutomaticColour;     // 0x00BBGGRR
  int32_t highlight = kAutomaticColour;  // behind the text; automatic is none

  friend bool operator==(const TextFormat&, const TextFormat&) = default;
};

struct TextRun : TextFormat {
  std::string text;      // UTF-8; a line feed is a line's end inside the paragraph
  int32_t picture = -1;  // one of the document's, instead of text
};

struct TextTab {
  int32_t position = 0;  // twips from the margin
  TabKind kind = TabKind::kLeft;
};

struct TextParagraph {
  TextAlignment alignment = TextAlignment::kLeft;
  int32_t leftIndent = 0;  // twips
  int32_t rightIndent = 0;
  int32_t firstLineIndent = 0;
  int32_t spaceBefore = 0;
  int32_t spaceAfter = 0;
  // 240ths of a line where it is a multiple. Twips otherwise: at least so many, or exactly so many
  // where it is negative.
  int32_t lineSpacing = kSingleLine;
  bool lineSpacingIsMultiple = true;
  bool pageBreakBefore = false;
  std::vector<TextTab> tabs;  // in the order of their positions
  std::vector<TextRun> runs;
};

struct RichTextDocument {
  std::vector<TextParagraph> paragraphs;
  std::vector<TextPicture> pictures;
  int32_t tabDistance = kDefaultTabDistance;  // twips, behind a paragraph's own stops
  bool isCut = false;                         // a limit was passed, and text is missing

  // The paragraphs' texts, joined by line feeds; UTF-8. Pictures leave no mark.
  std::string PlainText() const;
};

// No more than this is taken from a file: bytes of it, and characters of its text, of which a
// change of the format and a picture count as 80, a tab stop as 10 and a paragraph as 160. Groups
// nested deeper are passed over.
inline constexpr size_t kMostBytes = size_t{16} * 1024 * 1024;
inline constexpr size_t kMostCharacters = size_t{16} * 1024 * 1024;
inline constexpr size_t kCostOfRun = 80;
inline constexpr size_t kCostOfTab = 10;
inline constexpr size_t kCostOfParagraph = 160;
inline constexpr size_t kDeepestGroup = 500;
inline constexpr size_t kMostTabStops = 64;  // of a paragraph, and cells of a table's row

// Bytes that begin with the format's mark, if behind the mark of UTF-8.
bool IsRichText(std::string_view bytes);

// Rich text, or where the bytes are none, their lines: of UTF-8 or UTF-16 with its mark, of UTF-8
// without one, or of station text.
RichTextDocument ReadRichText(std::string_view bytes);

// The plain text with none of these limits; the deepest groups have theirs in it too.
std::string ReadWholeText(std::string_view bytes);

}  // namespace logchecker
