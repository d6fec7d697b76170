#include "notes/RichText.h"

#include <algorithm>

#include "notes/RichTextBody.h"
#include "notes/RichTextReader.h"
#include "notes/Utf8.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

constexpr std::string_view kMark = "{\\rtf";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kSwappedUtf16Mark = "\xFE\xFF";

bool BeginsWith(std::string_view bytes, std::string_view mark) {
  return bytes.substr(0, mark.size()) == mark;
}

std::string_view WithoutUtf8Mark(std::string_view bytes) {
  return BeginsWith(bytes, kUtf8Mark) ? bytes.substr(kUtf8Mark.size()) : bytes;
}

// Station text of plain ASCII is UTF-8 too; other station text is so by the rarest of accidents.
std::string PlainToUtf8(std::string_view bytes, bool isCut) {
  const std::string_view utf8 = isCut ? WithoutCutCharacter(bytes) : bytes;
  if (BeginsWith(bytes, kUtf8Mark)) return CleanUtf8(WithoutUtf8Mark(utf8));
  if (BeginsWith(bytes, kUtf16Mark)) return FromUtf16(bytes.substr(kUtf16Mark.size()), false);
  if (BeginsWith(bytes, kSwappedUtf16Mark)) {
    return FromUtf16(bytes.substr(kSwappedUtf16Mark.size()), true);
  }
  return IsUtf8(utf8) ? std::string(utf8) : ToUtf8(bytes);
}

void ReadPlainLines(std::string_view utf8, RichTextBody& body) {
  size_t begin = 0;
  // What stands behind the last line's end is a line too, if an empty one.
  bool more = !utf8.empty();
  while (more && !body.IsFull()) {
    const size_t end = std::min(utf8.find_first_of("\r\n", begin), utf8.size());
    body.AppendText(utf8.substr(begin, end - begin), TextFormat());
    body.EndParagraph(TextParagraph());
    const bool pair = end + 1 < utf8.size() && utf8[end] == '\r' && utf8[end + 1] == '\n';
    more = end < utf8.size();
    begin = end + (pair ? 2 : 1);
  }
}

void Read(std::string_view bytes, bool isCut, RichTextBody& body) {
  if (IsRichText(bytes)) {
    ReadRichTextGroups(WithoutUtf8Mark(bytes), body);
  } else {
    ReadPlainLines(PlainToUtf8(bytes, isCut), body);
  }
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

bool IsRichText(std::string_view bytes) { return BeginsWith(WithoutUtf8Mark(bytes), kMark); }

RichTextDocument ReadRichText(std::string_view bytes) {
  RichTextBody body(RichTextBody::kDocument);
  const bool isCut = bytes.size() > kMostBytes;
  if (isCut) body.SetCut();
  Read(bytes.substr(0, kMostBytes), isCut, body);
  return body.TakeDocument();
}

std::string ReadWholeText(std::string_view bytes) {
  RichTextBody body(RichTextBody::kWholeText);
  Read(bytes, false, body);
  return body.TakeText();
}

}  // namespace logchecker
