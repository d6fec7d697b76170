// What a note comes to while it is read: paragraphs of runs, within the limits, or its text alone.
#pragma once

#include <string>
#include <string_view>

#include "notes/RichText.h"

namespace logchecker {

class RichTextBody {
 public:
  enum Purpose { kDocument, kWholeText };

  explicit RichTextBody(Purpose purpose) : purpose_(purpose) {}

  void Append(char32_t codePoint, const TextFormat& format);
  // The same for a whole text in UTF-8.
  void AppendText(std::string_view utf8, const TextFormat& format);
  void AppendPicture(TextPicture picture, const TextFormat& format);
  // Takes back a tab that the paragraph ends with.
  void DropLastTab();
  // Ends the paragraph with this format, of which the runs don't count.
  void EndParagraph(const TextParagraph& format);

  bool IsForText() const { return purpose_ == kWholeText; }
  bool HasParagraph() const { return !current_.empty(); }
  void SetTabDistance(int32_t twips) { document_.tabDistance = twips; }
  // Tells that something was passed over.
  void SetCut() { document_.isCut = true; }
  // Whether nothing more has room.
  bool IsFull() const { return full_; }

  RichTextDocument TakeDocument();
  std::string TakeText();

 private:
  bool HasRoomFor(size_t characters);
  bool GoesOnIn(const TextFormat& format) const;
  TextRun& RunOf(const TextFormat& format);

  Purpose purpose_;
  RichTextDocument document_;
  std::vector<TextRun> current_;
  std::string text_;
  bool anyParagraph_ = false;
  bool full_ = false;
  size_t characters_ = 0;
};

}  // namespace logchecker
