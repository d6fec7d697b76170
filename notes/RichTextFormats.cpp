#include "notes/RichTextFormats.h"

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
  TakeParagraphFormat(word, number);
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
  switch (word) {
    case RichTextWord::kBold:
      state.bold = on;
      break;
    case RichTextWord::kItalic:
      state.italic = on;
      break;
    case RichTextWord::kUnderline:
      state.underline = on;
      break;
    case RichTextWord::kNoUnderline:
      state.underline = false;
      break;
    case RichTextWord::kHidden:
      state.hidden = on;
      break;
    case RichTextWord::kFont:
      state.font = number;
      if (state.destination == GroupState::kFonts) *FontInHand() = FontEntry();
      break;
    case RichTextWord::kFontSize:
      if (number > 0 && number <= kMostHalfPoints) state.halfPoints = number;
      break;
    case RichTextWord::kColour:
      state.colour = number;
      break;
    case RichTextWord::kPlain:
      state.bold = state.italic = state.underline = state.hidden = false;
      state.font = defaultFont_;
      state.halfPoints = kDefaultHalfPoints;
      state.colour = 0;
      break;
    default:
      break;
  }
}

void RichTextFormats::TakeParagraphFormat(RichTextWord word, int32_t number) {
  TextParagraph& paragraph = state.paragraph;
  switch (word) {
    case RichTextWord::kParagraphDefaults:
      paragraph = TextParagraph();
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

FontEntry* RichTextFormats::FontInHand() {
  if (fonts_.size() >= kMostTableEntries && fonts_.count(state.font) == 0) return &overflow_;
  return &fonts_[state.font];
}

int32_t RichTextFormats::CodePageInForce() const {
  const auto font = fonts_.find(state.font);
  const bool own = font != fonts_.end() && font->second.codePage != 0;
  return own ? font->second.codePage : codePage_;
}

TextRun RichTextFormats::RunInForce() const {
  TextRun run;
  const auto font = fonts_.find(state.font);
  if (font != fonts_.end()) run.fontName = font->second.name;
  run.halfPoints = state.halfPoints;
  run.bold = state.bold;
  run.italic = state.italic;
  run.underline = state.underline;
  const auto colour = static_cast<size_t>(state.colour);
  if (state.colour >= 0 && colour < colours_.size()) run.colour = colours_[colour];
  return run;
}

}  // namespace logchecker
