// The formats in force while rich text is read: what groups keep, the fonts and the colours.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "notes/CodePages.h"
#include "notes/RichText.h"
#include "notes/RichTextWords.h"

namespace logchecker {

struct FontEntry {
  std::string name;
  int32_t codePage = 0;  // 0 follows the document
};

// What a group keeps and its end brings back.
struct GroupState {
  enum Destination { kBody, kFonts, kColours, kPicture, kSkipped };

  Destination destination = kBody;
  int32_t font = 0;
  int32_t colour = 0;     // index into the table
  int32_t highlight = 0;  // the same
  bool hidden = false;
  TextFormat format;  // its font's name and colours are to be looked up
  int32_t unicodeSkip = 1;
  TextParagraph paragraph;  // its runs stay empty
  TabKind nextTab = TabKind::kLeft;
};

class RichTextFormats {
 public:
  // Takes a word that concerns formats; any other does nothing. `on` is whether the word switches
  // something on.
  void Take(RichTextWord word, int32_t number, bool on);

  // Ends the colour that is being given in the table.
  void EndColour();

  // The table's entry of the font that is set; a table that is full has a last one for all others.
  FontEntry* FontInHand();

  int32_t DocumentCodePage() const { return codePage_; }
  // That of the font that is set, or else the document's.
  int32_t CodePageInForce() const;
  TextFormat FormatInForce() const;

  GroupState state;

 private:
  void TakeTableWord(RichTextWord word, int32_t number);
  void TakeCharacterFormat(RichTextWord word, int32_t number, bool on);
  void TakeScript(RichTextWord word, int32_t number, bool on);
  void TakeParagraphFormat(RichTextWord word, int32_t number, bool on);
  void TakeSpacing(RichTextWord word, int32_t number, bool on);
  void TakeTabStop(RichTextWord word, int32_t number);
  int32_t ColourOf(int32_t index) const;

  int32_t codePage_ = kWesternCodePage;
  int32_t defaultFont_ = 0;
  std::map<int32_t, FontEntry> fonts_;
  FontEntry overflow_;
  std::vector<int32_t> colours_;
  int32_t nextColour_ = 0;
  bool colourGiven_ = false;
};

}  // namespace logchecker
