#include "notes/RichTextReader.h"

#include <utility>

#include "notes/CodePages.h"
#include "notes/RichTextFormats.h"
#include "notes/RichTextTokens.h"
#include "notes/RichTextWords.h"

namespace logchecker {

namespace {

constexpr size_t kLongestFontName = 200;
constexpr size_t kCostOfRun = 20;  // characters
constexpr size_t kCostOfParagraph = 40;

class RichTextReader {
 public:
  explicit RichTextReader(std::string_view bytes) : tokens_(bytes) {}

  RichTextDocument Read() {
    for (RichTextToken token = tokens_.Next(); token.kind != RichTextToken::kEnd;
         token = tokens_.Next()) {
      Take(token);
      if (characters_ >= kMostCharacters) break;
    }
    FlushSurrogate();
    if (!current_.runs.empty()) EndParagraph();
    return std::move(document_);
  }

 private:
  void Take(const RichTextToken& token) {
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
    } else {
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
    if (stack_.empty()) return;
    formats_.state = std::move(stack_.back());
    stack_.pop_back();
  }

  void TakeByte(unsigned char byte) {
    switch (formats_.state.destination) {
      case GroupState::kFonts:
        if (byte == ';') return;
        if (FontEntry* font = formats_.FontInHand(); font->name.size() < kLongestFontName) {
          AppendUtf8(font->name, CodePointOf(byte, formats_.DocumentCodePage()));
        }
        return;
      case GroupState::kColours:
        if (byte == ';') formats_.EndColour();
        return;
      case GroupState::kBody:
        AddCharacter(CodePointOf(byte, formats_.CodePageInForce()));
        return;
      case GroupState::kSkipped:
        return;
    }
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
        if (formats_.state.destination == GroupState::kBody) EndParagraph();
        break;
      default:
        break;
    }
  }

  void TakeWord(const RichTextToken& token) {
    const RichTextMeaning meaning = MeaningOf(token.word);
    const int32_t number = token.number.value_or(0);
    const bool on = token.number.value_or(1) != 0;
    if (starred_ && meaning.word != RichTextWord::kFontTable &&
        meaning.word != RichTextWord::kColourTable) {
      formats_.state.destination = GroupState::kSkipped;
    }
    if (formats_.state.destination == GroupState::kSkipped) return;
    switch (meaning.word) {
      case RichTextWord::kSkippedGroup:
        formats_.state.destination = GroupState::kSkipped;
        break;
      case RichTextWord::kCharacter:
        AddCharacter(meaning.character);
        break;
      case RichTextWord::kFontTable:
        formats_.state.destination = GroupState::kFonts;
        break;
      case RichTextWord::kColourTable:
        formats_.state.destination = GroupState::kColours;
        break;
      case RichTextWord::kParagraphEnd:
        EndParagraphInBody();
        break;
      case RichTextWord::kCellEnd:
        AddCharacter('\t');
        break;
      case RichTextWord::kRowEnd:
        DropLastTab();
        EndParagraphInBody();
        break;
      case RichTextWord::kUnicode:
        AddUnicode(number);
        skip_ = formats_.state.unicodeSkip;
        break;
      case RichTextWord::kUnicodeSkip:
        formats_.state.unicodeSkip = number < 0 ? 0 : number;
        break;
      default:
        formats_.Take(meaning.word, number, on);
        break;
    }
  }

  static bool SameFormat(const TextRun& a, const TextRun& b) {
    return a.bold == b.bold && a.italic == b.italic && a.underline == b.underline &&
           a.halfPoints == b.halfPoints && a.colour == b.colour && a.fontName == b.fontName;
  }

  void AddCharacter(char32_t codePoint) {
    FlushSurrogate();
    Append(codePoint);
  }

  void Append(char32_t codePoint) {
    const bool control = codePoint < 0x20 && codePoint != '\t' && codePoint != '\n';
    if (formats_.state.destination != GroupState::kBody || formats_.state.hidden || control) return;
    ++characters_;
    const TextRun run = formats_.RunInForce();
    if (current_.runs.empty() || !SameFormat(current_.runs.back(), run)) {
      current_.runs.push_back(run);
      characters_ += kCostOfRun;
    }
    AppendUtf8(current_.runs.back().text, codePoint);
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
      surrogate_ = unit;
    } else {
      Append(unit);
    }
  }

  void FlushSurrogate() {
    if (surrogate_ != 0) Append(std::exchange(surrogate_, 0));
  }

  void DropLastTab() {
    if (current_.runs.empty()) return;
    std::string& text = current_.runs.back().text;
    if (!text.empty() && text.back() == '\t') text.pop_back();
    if (text.empty()) current_.runs.pop_back();
  }

  void EndParagraphInBody() {
    if (formats_.state.destination == GroupState::kBody) EndParagraph();
  }

  void EndParagraph() {
    FlushSurrogate();
    characters_ += kCostOfParagraph;
    TextParagraph paragraph = formats_.state.paragraph;
    paragraph.runs = std::exchange(current_.runs, {});
    document_.paragraphs.push_back(std::move(paragraph));
  }

  RichTextTokens tokens_;
  RichTextDocument document_;
  TextParagraph current_;
  RichTextFormats formats_;
  std::vector<GroupState> stack_;
  size_t tooDeep_ = 0;  // groups beyond the deepest that keep a state
  bool starred_ = false;
  int32_t skip_ = 0;
  char32_t surrogate_ = 0;  // the first half of a pair
  size_t characters_ = 0;
};

}  // namespace

RichTextDocument ReadRichTextGroups(std::string_view bytes) { return RichTextReader(bytes).Read(); }

}  // namespace logchecker
