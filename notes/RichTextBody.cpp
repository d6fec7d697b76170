#include "notes/RichTextBody.h"

#include <utility>

#include "notes/Utf8.h"

namespace logchecker {

bool RichTextBody::HasRoomFor(size_t characters) {
  if (purpose_ == kWholeText) return true;
  if (full_ || kMostCharacters - characters_ < characters) {
    full_ = document_.isCut = true;
    return false;
  }
  characters_ += characters;
  return true;
}

bool RichTextBody::GoesOnIn(const TextFormat& format) const {
  return !current_.empty() && current_.back().picture < 0 && current_.back() == format;
}

// The last run where it has the format, or else a new one.
TextRun& RichTextBody::RunOf(const TextFormat& format) {
  if (!GoesOnIn(format)) {
    TextRun run;
    static_cast<TextFormat&>(run) = format;
    current_.push_back(std::move(run));
  }
  return current_.back();
}

void RichTextBody::Append(char32_t codePoint, const TextFormat& format) {
  if (!HasRoomFor(GoesOnIn(format) ? 1 : 1 + kCostOfRun)) return;
  AppendUtf8(RunOf(format).text, codePoint);
}

void RichTextBody::AppendText(std::string_view utf8, const TextFormat& format) {
  const size_t before = GoesOnIn(format) ? 0 : kCostOfRun;
  const size_t room = IsForText() ? before + utf8.size() : kMostCharacters - characters_;
  if (utf8.empty() || full_) return;
  if (room > before) {
    const std::string_view fits = FirstCharacters(utf8, room - before);
    HasRoomFor(before + CountCharacters(fits));
    RunOf(format).text += fits;
    utf8.remove_prefix(fits.size());
  }
  if (!utf8.empty()) full_ = document_.isCut = true;
}

void RichTextBody::AppendPicture(TextPicture picture, const TextFormat& format) {
  if (purpose_ == kWholeText || !HasRoomFor(kCostOfRun)) return;
  TextRun run;
  static_cast<TextFormat&>(run) = format;
  run.picture = static_cast<int32_t>(document_.pictures.size());
  document_.pictures.push_back(std::move(picture));
  current_.push_back(std::move(run));
}

void RichTextBody::DropLastTab() {
  if (current_.empty()) return;
  std::string& text = current_.back().text;
  if (text.empty() || text.back() != '\t') return;
  text.pop_back();
  if (text.empty()) current_.pop_back();
}

void RichTextBody::EndParagraph(const TextParagraph& format) {
  std::vector<TextRun> runs = std::exchange(current_, {});
  if (purpose_ == kWholeText) {
    if (std::exchange(anyParagraph_, true)) text_ += '\n';
    for (const TextRun& run : runs) text_ += run.text;
    return;
  }
  const bool room = HasRoomFor(kCostOfParagraph + kCostOfTab * format.tabs.size());
  // What it holds has been counted, and is not lost with the last of the room.
  if (!room && runs.empty()) return;
  TextParagraph paragraph = format;
  paragraph.runs = std::move(runs);
  document_.paragraphs.push_back(std::move(paragraph));
}

RichTextDocument RichTextBody::TakeDocument() { return std::move(document_); }

std::string RichTextBody::TakeText() { return std::move(text_); }

}  // namespace logchecker
