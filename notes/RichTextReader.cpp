#include "notes/RichTextReader.h"

#include <string>
#include <utility>
#include <vector>

#include "notes/CodePages.h"
#include "notes/PictureReader.h"
#include "notes/RichTextFormats.h"
#include "notes/RichTextRow.h"
#include "notes/RichTextTokens.h"
#include "notes/RichTextWords.h"
#include "notes/Utf8.h"

namespace logchecker {

namespace {

constexpr size_t kLongestFontName = 200;

// Groups that are read though a star asks readers that don't know them to pass them over.
bool IsReadWithStar(RichTextWord word) {
  return word == RichTextWord::kFontTable || word == RichTextWord::kColourTable ||
         word == RichTextWord::kShownGroup;
}

class RichTextReader {
 public:
  RichTextReader(std::string_view bytes, RichTextBody& body) : tokens_(bytes), body_(body) {}

  void Read() {
    while (!body_.IsFull()) {
      TakePlain();
      const RichTextToken token = tokens_.Next();
      if (token.kind == RichTextToken::kEnd) break;
      Take(token);
    }
    FlushBytes();
    // Its group's end has brought back another format than it was written in.
    const TextParagraph last = lastFormat_;
    FlushSurrogate();
    if (body_.HasParagraph()) EndParagraph(last, false);
  }

 private:
  // Text that means itself in every code page is taken in one.
  void TakePlain() {
    const bool inBody = formats_.state.destination == GroupState::kBody;
    const bool skipped = formats_.state.destination == GroupState::kSkipped;
    if ((!inBody && !skipped) || skip_ > 0 || tooDeep_ > 0 || decoder_.HasBegun()) return;
    const std::string_view text = tokens_.Plain();
    if (text.empty()) return;
    starred_ = false;
    if (skipped || formats_.state.hidden) return;
    FlushSurrogate();
    body_.AppendText(text, FormatInForce());
  }

  void Take(const RichTextToken& token) {
    if (decoder_.HasBegun() && token.kind != RichTextToken::kByte) FlushBytes();
    switch (token.kind) {
      case RichTextToken::kOpen:
        OpenGroup();
        return;
      case RichTextToken::kClose:
        CloseGroup();
        return;
      default:
        break;
    }
    if (tooDeep_ > 0) return;
    // What stands behind \u for readers that don't know it.
    if (skip_ > 0) {
      --skip_;
      return;
    }
    if (token.kind == RichTextToken::kByte) {
      TakeByte(token.byte);
    } else if (token.kind == RichTextToken::kSymbol) {
      TakeSymbol(static_cast<char>(token.byte));
    } else {
      TakeWord(token);
    }
    if (token.kind != RichTextToken::kSymbol || token.byte != '*') starred_ = false;
  }

  void OpenGroup() {
    skip_ = 0;
    starred_ = false;
    if (stack_.size() < kDeepestGroup) {
      stack_.push_back(formats_.state);
    } else if (body_.IsForText()) {
      deeper_ += static_cast<char>(formats_.state.destination << 1U | int{formats_.state.hidden});
    } else {
      body_.SetCut();
      ++tooDeep_;
    }
  }

  void CloseGroup() {
    skip_ = 0;
    starred_ = false;
    if (tooDeep_ > 0) {
      --tooDeep_;
      return;
    }
    if (!deeper_.empty()) {
      formats_.state.destination = static_cast<GroupState::Destination>(deeper_.back() >> 1U);
      formats_.state.hidden = (deeper_.back() & 1) != 0;
      deeper_.pop_back();
      return;
    }
    if (stack_.empty()) return;
    const bool inPicture = formats_.state.destination == GroupState::kPicture;
    formats_.state = std::move(stack_.back());
    stack_.pop_back();
    stale_ = true;
    if (inPicture && formats_.state.destination != GroupState::kPicture) EndPicture();
  }

  void EndPicture() {
    std::optional<TextPicture> picture = picture_.End();
    if (!picture || formats_.state.hidden) return;
    FlushSurrogate();
    body_.AppendPicture(std::move(*picture), FormatInForce());
  }

  void TakeByte(unsigned char byte) {
    switch (formats_.state.destination) {
      case GroupState::kFonts:
        if (byte == ';' && !decoder_.HasBegun()) return;
        AddToFontName(decoder_.Take(byte, formats_.DocumentCodePage()));
        return;
      case GroupState::kColours:
        if (byte == ';') formats_.EndColour();
        return;
      case GroupState::kBody:
        AddCharacters(decoder_.Take(byte, CodePageInForce()));
        return;
      case GroupState::kPicture:
        picture_.TakeDigit(byte);
        return;
      case GroupState::kSkipped:
        return;
    }
  }

  void AddToFontName(const std::u32string& characters) {
    FontEntry* font = formats_.FontInHand();
    for (const char32_t character : characters) {
      if (font->name.size() < kLongestFontName) AppendUtf8(font->name, character);
    }
    stale_ = true;
  }

  void AddCharacters(const std::u32string& characters) {
    for (const char32_t character : characters) AddCharacter(character);
  }

  void FlushBytes() {
    const std::u32string& characters = decoder_.End();
    if (formats_.state.destination == GroupState::kBody) AddCharacters(characters);
  }

  void TakeSymbol(char symbol) {
    switch (symbol) {
      case '*':
        starred_ = true;
        break;
      case '\\':
      case '{':
      case '}':
        AddCharacter(static_cast<char32_t>(symbol));
        break;
      case '~':
        AddCharacter(0x00A0);
        break;
      case '_':
        AddCharacter(0x2011);
        break;
      case '\r':
      case '\n':
        EndParagraphInBody(false);
        break;
      default:
        break;
    }
  }

  void TakeWord(const RichTextToken& token) {
    const RichTextMeaning meaning = MeaningOf(token.word);
    const int32_t number = token.number.value_or(0);
    GroupState& state = formats_.state;
    if (starred_ && !IsReadWithStar(meaning.word)) state.destination = GroupState::kSkipped;
    if (state.destination == GroupState::kSkipped) return;
    if (TakeDestination(meaning.word)) return;
    if (state.destination == GroupState::kPicture) {
      picture_.Take(meaning.word, number);
      if (meaning.word == RichTextWord::kBinary) picture_.TakeBinary(token.data);
      return;
    }
    switch (meaning.word) {
      case RichTextWord::kCharacter:
        AddCharacter(meaning.character);
        break;
      case RichTextWord::kUnicode:
        AddUnicode(number);
        skip_ = state.unicodeSkip;
        break;
      case RichTextWord::kUnicodeSkip:
        state.unicodeSkip = number < 0 ? 0 : number;
        break;
      case RichTextWord::kTabDistance:
        body_.SetTabDistance(number);
        break;
      default:
        TakeEnd(meaning.word);
        row_.Take(meaning.word, number);
        formats_.Take(meaning.word, number, token.number.value_or(1) != 0);
        stale_ = true;
        break;
    }
  }

  // Whether the word says what its group is for.
  bool TakeDestination(RichTextWord word) {
    GroupState& state = formats_.state;
    switch (word) {
      case RichTextWord::kSkippedGroup:
        state.destination = GroupState::kSkipped;
        return true;
      case RichTextWord::kShownGroup:
        return true;
      case RichTextWord::kFontTable:
        state.destination = GroupState::kFonts;
        return true;
      case RichTextWord::kColourTable:
        state.destination = GroupState::kColours;
        return true;
      case RichTextWord::kPicture:
        if (state.destination == GroupState::kPicture) return true;
        picture_.Begin();
        state.destination =
            state.destination == GroupState::kBody ? GroupState::kPicture : GroupState::kSkipped;
        return true;
      default:
        return false;
    }
  }

  // Of a paragraph, a cell, a row or a page.
  void TakeEnd(RichTextWord word) {
    switch (word) {
      case RichTextWord::kParagraphEnd:
        EndParagraphInBody(false);
        break;
      case RichTextWord::kPageBreak:
        EndParagraphInBody(false);
        pageBreak_ = true;
        break;
      case RichTextWord::kCellEnd:
        AddCharacter('\t');
        row_.EndCell();
        break;
      case RichTextWord::kRowEnd:
        body_.DropLastTab();
        EndParagraphInBody(true);
        row_.EndRow();
        break;
      default:
        break;
    }
  }

  int32_t CodePageInForce() {
    FormatInForce();
    return codePage_;
  }

  // Looked up again where a word or a group's end may have changed it.
  const TextFormat& FormatInForce() {
    if (std::exchange(stale_, false)) {
      format_ = formats_.FormatInForce();
      codePage_ = formats_.CodePageInForce();
      lastFormat_ = formats_.state.paragraph;
    }
    return format_;
  }

  void AddCharacter(char32_t codePoint) {
    FlushSurrogate();
    Append(codePoint);
  }

  void Append(char32_t codePoint) {
    const bool control = codePoint < 0x20 && codePoint != '\t' && codePoint != '\n';
    if (formats_.state.destination != GroupState::kBody || formats_.state.hidden || control) return;
    body_.Append(codePoint, FormatInForce());
  }

  // Numbers above 32767 are written as negative ones, and those above 65535 as a pair.
  void AddUnicode(int32_t number) {
    const auto unit = static_cast<char32_t>(static_cast<uint16_t>(number));
    const bool high = unit >= 0xD800 && unit <= 0xDBFF;
    const bool low = unit >= 0xDC00 && unit <= 0xDFFF;
    if (low && surrogate_ != 0) {
      const char32_t pair = 0x10000 + ((surrogate_ - 0xD800) << 10) + (unit - 0xDC00);
      surrogate_ = 0;
      Append(pair);
      return;
    }
    FlushSurrogate();
    if (high) {
      FormatInForce();
      surrogate_ = unit;
    } else {
      Append(unit);
    }
  }

  void FlushSurrogate() {
    if (surrogate_ != 0) Append(std::exchange(surrogate_, 0));
  }

  void EndParagraphInBody(bool endsRow) {
    if (formats_.state.destination != GroupState::kBody) return;
    FlushSurrogate();
    EndParagraph(formats_.state.paragraph, endsRow);
  }

  void EndParagraph(const TextParagraph& paragraph, bool endsRow) {
    TextParagraph format = row_.FormatOf(paragraph, endsRow);
    if (std::exchange(pageBreak_, false)) format.pageBreakBefore = true;
    body_.EndParagraph(format);
  }

  RichTextTokens tokens_;
  RichTextBody& body_;
  RichTextFormats formats_;
  std::vector<GroupState> stack_;
  ByteDecoder decoder_;
  PictureReader picture_;
  RichTextRow row_;
  TextFormat format_;  // in force, unless it is stale
  int32_t codePage_ = 0;
  bool stale_ = true;
  TextParagraph lastFormat_;  // of the paragraph that it was looked up in
  size_t tooDeep_ = 0;        // groups beyond the deepest that keep a state, which are passed over
  // Of such groups where all text is wanted: what is read, and whether it is hidden.
  std::string deeper_;
  bool starred_ = false;
  bool pageBreak_ = false;  // before the paragraph in hand
  int32_t skip_ = 0;
  char32_t surrogate_ = 0;  // the first half of a pair
};

}  // namespace

void ReadRichTextGroups(std::string_view bytes, RichTextBody& body) {
  RichTextReader(bytes, body).Read();
}

}  // namespace logchecker
