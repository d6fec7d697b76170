#include "notes/RichTextFormats.h"

#include <algorithm>
#include <utility>

namespace logchecker {

namespace {

constexpr int32_t kMacCodePage = 10000;
constexpr int32_t kPcCodePage = 437;
constexpr int32_t kPcaCodePage = 850;
constexpr int32_t kMostHalfPoints = 3200;
constexpr size_t kMostTableEntries = 4096;  // of fonts and of colours

}  // namespace

void RichTextFormats::Take(RichTextWord word, int32_t number, bool on) {
  TakeTableWord(word, number);
  TakeCharacterFormat(word, number, on);
  TakeScript(word, number, on);
  TakeParagraphFormat(word, number, on);
  TakeSpacing(word, number, on);
  TakeTabStop(word, number);
}

void RichTextFormats::EndColour() {
  if (colours_.size() < kMostTableEntries) {
    colours_.push_back(colourGiven_ ? nextColour_ : kAutomaticColour);
  }
  nextColour_ = 0;
  colourGiven_ = false;
}

// The document's head, its fonts and its colours.
void RichTextFormats::TakeTableWord(RichTextWord word, int32_t number) {
  const auto component = [&](unsigned shift) {
    const auto bits = static_cast<uint32_t>(number & 0xFF) << shift;
    nextColour_ = static_cast<int32_t>(static_cast<uint32_t>(nextColour_) | bits);
    colourGiven_ = true;
  };
  switch (word) {
    case RichTextWord::kAnsiCodePage:
      codePage_ = number;
      break;
    case RichTextWord::kMac:
      codePage_ = kMacCodePage;
      break;
    case RichTextWord::kPc:
      codePage_ = kPcCodePage;
      break;
    case RichTextWord::kPca:
      codePage_ = kPcaCodePage;
      break;
    case RichTextWord::kDefaultFont:
      defaultFont_ = number;
      state.font = number;
      break;
    case RichTextWord::kCharset:
      if (state.destination == GroupState::kFonts) {
        FontInHand()->codePage = CodePageOfCharset(number);
      }
      break;
    case RichTextWord::kFontCodePage:
      if (state.destination == GroupState::kFonts) FontInHand()->codePage = number;
      break;
    case RichTextWord::kRed:
      component(0);
      break;
    case RichTextWord::kGreen:
      component(8);
      break;
    case RichTextWord::kBlue:
      component(16);
      break;
    default:
      break;
  }
}

void RichTextFormats::TakeCharacterFormat(RichTextWord word, int32_t number, bool on) {
  TextFormat& format = state.format;
  switch (word) {
    case RichTextWord::kBold:
      format.bold = on;
      break;
    case RichTextWord::kItalic:
      format.italic = on;
      break;
    case RichTextWord::kUnderline:
      format.underline = on;
      break;
    case RichTextWord::kNoUnderline:
      format.underline = false;
      break;
    case RichTextWord::kStrike:
      format.strike = on;
      break;
    case RichTextWord::kHidden:
      state.hidden = on;
      break;
    case RichTextWord::kFont:
      state.font = number;
      if (state.destination == GroupState::kFonts) *FontInHand() = FontEntry();
      break;
    case RichTextWord::kFontSize:
      if (number > 0 && number <= kMostHalfPoints) format.halfPoints = number;
      break;
    case RichTextWord::kColour:
      state.colour = number;
      break;
    case RichTextWord::kHighlight:
      state.highlight = number;
      break;
    case RichTextWord::kPlain:
      format = TextFormat();
      state.hidden = false;
      state.font = defaultFont_;
      state.colour = state.highlight = 0;
      break;
    default:
      break;
  }
}

// Above and below the line, and capitals.
void RichTextFormats::TakeScript(RichTextWord word, int32_t number, bool on) {
  constexpr int32_t kUsualRaise = 6;  // half-points
  TextFormat& format = state.format;
  switch (word) {
    case RichTextWord::kSuper:
      format.script = on ? TextScript::kSuper : TextScript::kNormal;
      break;
    case RichTextWord::kSub:
      format.script = on ? TextScript::kSub : TextScript::kNormal;
      break;
    case RichTextWord::kNoScript:
      format.script = TextScript::kNormal;
      break;
    case RichTextWord::kUp:
    case RichTextWord::kDown: {
      const int32_t raise =
          std::clamp(on && number == 0 ? kUsualRaise : number, 0, kMostHalfPoints);
      format.raise = word == RichTextWord::kUp ? raise : -raise;
      break;
    }
    case RichTextWord::kCaps:
      format.caps = on ? TextCaps::kAll : TextCaps::kNone;
      break;
    case RichTextWord::kSmallCaps:
      format.caps = on ? TextCaps::kSmall : TextCaps::kNone;
      break;
    default:
      break;
  }
}

void RichTextFormats::TakeParagraphFormat(RichTextWord word, int32_t number, bool on) {
  TextParagraph& paragraph = state.paragraph;
  switch (word) {
    case RichTextWord::kParagraphDefaults:
      paragraph = TextParagraph();
      state.nextTab = TabKind::kLeft;
      break;
    case RichTextWord::kPageBreakBefore:
      paragraph.pageBreakBefore = on;
      break;
    case RichTextWord::kAlignLeft:
      paragraph.alignment = TextAlignment::kLeft;
      break;
    case RichTextWord::kAlignRight:
      paragraph.alignment = TextAlignment::kRight;
      break;
    case RichTextWord::kAlignCentre:
      paragraph.alignment = TextAlignment::kCentre;
      break;
    case RichTextWord::kAlignJustified:
      paragraph.alignment = TextAlignment::kJustified;
      break;
    case RichTextWord::kLeftIndent:
      paragraph.leftIndent = number;
      break;
    case RichTextWord::kRightIndent:
      paragraph.rightIndent = number;
      break;
    case RichTextWord::kFirstLineIndent:
      paragraph.firstLineIndent = number;
      break;
    default:
      break;
  }
}

void RichTextFormats::TakeSpacing(RichTextWord word, int32_t number, bool on) {
  TextParagraph& paragraph = state.paragraph;
  switch (word) {
    case RichTextWord::kSpaceBefore:
      paragraph.spaceBefore = number;
      break;
    case RichTextWord::kSpaceAfter:
      paragraph.spaceAfter = number;
      break;
    case RichTextWord::kLineSpacing:
      // No number, or none but 0, is a single line, whether or not it is a multiple.
      paragraph.lineSpacing = number == 0 ? kSingleLine : number;
      paragraph.lineSpacingIsMultiple = number == 0;
      break;
    case RichTextWord::kLineMultiple:
      paragraph.lineSpacingIsMultiple = on || paragraph.lineSpacing == kSingleLine;
      break;
    default:
      break;
  }
}

// The kind of a stop stands before its position.
void RichTextFormats::TakeTabStop(RichTextWord word, int32_t number) {
  std::vector<TextTab>& tabs = state.paragraph.tabs;
  switch (word) {
    case RichTextWord::kTabRight:
      state.nextTab = TabKind::kRight;
      break;
    case RichTextWord::kTabCentre:
      state.nextTab = TabKind::kCentre;
      break;
    case RichTextWord::kTabDecimal:
      state.nextTab = TabKind::kDecimal;
      break;
    case RichTextWord::kTabStop: {
      const TextTab tab = {number, std::exchange(state.nextTab, TabKind::kLeft)};
      if (number <= 0 || tabs.size() >= kMostTabStops) break;
      const auto place = std::upper_bound(
          tabs.begin(), tabs.end(), tab,
          [](const TextTab& a, const TextTab& b) { return a.position < b.position; });
      tabs.insert(place, tab);
      break;
    }
    default:
      break;
  }
}

FontEntry* RichTextFormats::FontInHand() {
  if (fonts_.size() >= kMostTableEntries && fonts_.count(state.font) == 0) return &overflow_;
  return &fonts_[state.font];
}

int32_t RichTextFormats::CodePageInForce() const {
  const auto font = fonts_.find(state.font);
  const bool own = font != fonts_.end() && font->second.codePage != 0;
  return own ? font->second.codePage : codePage_;
}

int32_t RichTextFormats::ColourOf(int32_t index) const {
  const auto entry = static_cast<size_t>(index);
  return index >= 0 && entry < colours_.size() ? colours_[entry] : kAutomaticColour;
}

TextFormat RichTextFormats::FormatInForce() const {
  TextFormat format = state.format;
  const auto font = fonts_.find(state.font);
  if (font != fonts_.end()) format.fontName = font->second.name;
  format.colour = ColourOf(state.colour);
  format.highlight = ColourOf(state.highlight);
  return format;
}

}  // namespace logchecker
