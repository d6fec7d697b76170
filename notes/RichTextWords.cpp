#include "notes/RichTextWords.h"

#include <algorithm>
#include <iterator>

namespace logchecker {

namespace {

using Word = RichTextWord;

struct Row {
  std::string_view name;
  RichTextMeaning meaning;
};

constexpr Row kWords[] = {
    {"ansicpg", {Word::kAnsiCodePage}},
    {"annotation", {Word::kSkippedGroup}},
    {"b", {Word::kBold}},
    {"blue", {Word::kBlue}},
    {"bullet", {Word::kCharacter, 0x2022}},
    {"cell", {Word::kCellEnd}},
    {"cf", {Word::kColour}},
    {"colortbl", {Word::kColourTable}},
    {"colorschememapping", {Word::kSkippedGroup}},
    {"cpg", {Word::kFontCodePage}},
    {"datastore", {Word::kSkippedGroup}},
    {"deff", {Word::kDefaultFont}},
    {"do", {Word::kSkippedGroup}},
    {"emdash", {Word::kCharacter, 0x2014}},
    {"emspace", {Word::kCharacter, 0x2003}},
    {"endash", {Word::kCharacter, 0x2013}},
    {"enspace", {Word::kCharacter, 0x2002}},
    {"f", {Word::kFont}},
    {"fcharset", {Word::kCharset}},
    {"fi", {Word::kFirstLineIndent}},
    {"filetbl", {Word::kSkippedGroup}},
    {"fldinst", {Word::kSkippedGroup}},
    {"fonttbl", {Word::kFontTable}},
    {"footer", {Word::kSkippedGroup}},
    {"footerf", {Word::kSkippedGroup}},
    {"footerl", {Word::kSkippedGroup}},
    {"footerr", {Word::kSkippedGroup}},
    {"footnote", {Word::kSkippedGroup}},
    {"fs", {Word::kFontSize}},
    {"generator", {Word::kSkippedGroup}},
    {"green", {Word::kGreen}},
    {"header", {Word::kSkippedGroup}},
    {"headerf", {Word::kSkippedGroup}},
    {"headerl", {Word::kSkippedGroup}},
    {"headerr", {Word::kSkippedGroup}},
    {"i", {Word::kItalic}},
    {"info", {Word::kSkippedGroup}},
    {"latentstyles", {Word::kSkippedGroup}},
    {"ldblquote", {Word::kCharacter, 0x201C}},
    {"li", {Word::kLeftIndent}},
    {"line", {Word::kCharacter, '\n'}},
    {"lin", {Word::kLeftIndent}},
    {"listoverridetable", {Word::kSkippedGroup}},
    {"listtable", {Word::kSkippedGroup}},
    {"lquote", {Word::kCharacter, 0x2018}},
    {"ltrmark", {Word::kCharacter, 0x200E}},
    {"mac", {Word::kMac}},
    {"nestcell", {Word::kCellEnd}},
    {"nestrow", {Word::kRowEnd}},
    {"nonshppict", {Word::kSkippedGroup}},
    {"objclass", {Word::kSkippedGroup}},
    {"objdata", {Word::kSkippedGroup}},
    {"objname", {Word::kSkippedGroup}},
    {"page", {Word::kParagraphEnd}},
    {"par", {Word::kParagraphEnd}},
    {"pard", {Word::kParagraphDefaults}},
    {"pc", {Word::kPc}},
    {"pca", {Word::kPca}},
    {"pict", {Word::kSkippedGroup}},
    {"plain", {Word::kPlain}},
    {"private", {Word::kSkippedGroup}},
    {"qc", {Word::kAlignCentre}},
    {"qj", {Word::kAlignJustified}},
    {"ql", {Word::kAlignLeft}},
    {"qmspace", {Word::kCharacter, 0x2005}},
    {"qr", {Word::kAlignRight}},
    {"rdblquote", {Word::kCharacter, 0x201D}},
    {"red", {Word::kRed}},
    {"revtbl", {Word::kSkippedGroup}},
    {"ri", {Word::kRightIndent}},
    {"rin", {Word::kRightIndent}},
    {"row", {Word::kRowEnd}},
    {"rquote", {Word::kCharacter, 0x2019}},
    {"rtlmark", {Word::kCharacter, 0x200F}},
    {"rxe", {Word::kSkippedGroup}},
    {"sect", {Word::kParagraphEnd}},
    {"shppict", {Word::kSkippedGroup}},
    {"softline", {Word::kCharacter, '\n'}},
    {"sp", {Word::kSkippedGroup}},
    {"stylesheet", {Word::kSkippedGroup}},
    {"tab", {Word::kCharacter, '\t'}},
    {"tc", {Word::kSkippedGroup}},
    {"template", {Word::kSkippedGroup}},
    {"themedata", {Word::kSkippedGroup}},
    {"u", {Word::kUnicode}},
    {"uc", {Word::kUnicodeSkip}},
    {"ul", {Word::kUnderline}},
    {"uld", {Word::kUnderline}},
    {"uldash", {Word::kUnderline}},
    {"uldashd", {Word::kUnderline}},
    {"uldashdd", {Word::kUnderline}},
    {"uldb", {Word::kUnderline}},
    {"ulnone", {Word::kNoUnderline}},
    {"ulth", {Word::kUnderline}},
    {"ulw", {Word::kUnderline}},
    {"ulwave", {Word::kUnderline}},
    {"v", {Word::kHidden}},
    {"xe", {Word::kSkippedGroup}},
    {"zwj", {Word::kCharacter, 0x200D}},
    {"zwnj", {Word::kCharacter, 0x200C}},
};

}  // namespace

RichTextMeaning MeaningOf(std::string_view word) {
  const auto* found = std::find_if(std::begin(kWords), std::end(kWords),
                                   [&](const Row& row) { return row.name == word; });
  return found != std::end(kWords) ? found->meaning : RichTextMeaning();
}

}  // namespace logchecker
