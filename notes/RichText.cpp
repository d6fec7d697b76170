#include "notes/RichText.h"

#include "notes/RichTextReader.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr std::string_view kMark = "{\\rtf";
constexpr size_t kCostOfParagraph = 40;  // characters

RichTextDocument PlainLines(std::string_view bytes) {
  RichTextDocument document;
  size_t begin = 0;
  size_t characters = 0;
  // What stands behind the last line's end is a line too, if an empty one.
  bool more = !bytes.empty();
  while (more && characters < kMostCharacters) {
    size_t end = bytes.find_first_of("\r\n", begin);
    if (end == std::string_view::npos) end = bytes.size();
    characters += end - begin + kCostOfParagraph;
    TextParagraph paragraph;
    if (end > begin) {
      TextRun run;
      run.text = ToUtf8(bytes.substr(begin, end - begin));
      paragraph.runs.push_back(run);
    }
    document.paragraphs.push_back(paragraph);
    const bool pair = end + 1 < bytes.size() && bytes[end] == '\r' && bytes[end + 1] == '\n';
    more = end < bytes.size();
    begin = end + (pair ? 2 : 1);
  }
  return document;
}

}  // namespace

std::string RichTextDocument::PlainText() const {
  std::string text;
  for (size_t i = 0; i < paragraphs.size(); ++i) {
    if (i > 0) text += '\n';
    for (const TextRun& run : paragraphs[i].runs) text += run.text;
  }
  return text;
}

bool IsRichText(std::string_view bytes) { return bytes.substr(0, kMark.size()) == kMark; }

RichTextDocument ReadRichText(std::string_view bytes) {
  bytes = bytes.substr(0, kMostBytes);
  return IsRichText(bytes) ? ReadRichTextGroups(bytes) : PlainLines(bytes);
}

}  // namespace logchecker
