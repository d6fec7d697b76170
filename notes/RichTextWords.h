// What the words of rich text mean to the reader.
#pragma once

#include <string_view>

namespace logchecker {

enum class RichTextWord {
  kUnknown,
  kSkippedGroup,  // a destination whose group is passed over
  kShownGroup,    // a destination whose group is read like any other
  kCharacter,     // stands for one character
  kFontTable,
  kColourTable,
  kBold,
  kItalic,
  kUnderline,
  kNoUnderline,
  kHidden,
  kFont,
  kFontSize,
  kColour,
  kPlain,
  kParagraphDefaults,
  kAlignLeft,
  kAlignRight,
  kAlignCentre,
  kAlignJustified,
  kLeftIndent,
  kRightIndent,
  kFirstLineIndent,
  kParagraphEnd,
  kCellEnd,
  kRowEnd,
  kUnicode,
  kUnicodeSkip,
  kAnsiCodePage,
  kMac,
  kPc,
  kPca,
  kDefaultFont,
  kCharset,
  kFontCodePage,
  kRed,
  kGreen,
  kBlue,
  kStrike,
  kHighlight,
  kSuper,
  kSub,
  kNoScript,
  kUp,
  kDown,
  kCaps,
  kSmallCaps,
  kSpaceBefore,
  kSpaceAfter,
  kLineSpacing,
  kLineMultiple,
  kPageBreak,
  kPageBreakBefore,
  kTabStop,
  kTabRight,
  kTabCentre,
  kTabDecimal,
  kTabDistance,
  kRowDefaults,
  kCellEdge,
  kRowLeft,
  kRowGap,
  kPicture,
  kPng,
  kJpeg,
  kBitmap,
  kOtherPicture,  // of a kind that is not shown
  kPictureWidth,
  kPictureHeight,
  kPictureScaleX,
  kPictureScaleY,
  kBinary,
};

struct RichTextMeaning {
  RichTextWord word = RichTextWord::kUnknown;
  char32_t character = 0;
};

RichTextMeaning MeaningOf(std::string_view word);

}  // namespace logchecker
