// Any bytes as a note.
#include "fuzz/Fuzzer.h"
#include "notes/RichText.h"
#include "notes/TextFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  const std::string_view bytes = AsText(data, size);
  const RichTextDocument document = ReadRichText(bytes);
  // A byte of the file becomes at most one character, of at most four bytes.
  const std::string text = document.PlainText();
  Require(text.size() <= 4 * size + 4);
  for (const TextParagraph& paragraph : document.paragraphs) {
    Require(paragraph.tabs.size() <= kMostTabStops);
  }
  size_t pictures = 0;
  for (const TextPicture& picture : document.pictures) {
    pictures += picture.bytes.size();
    Require(PictureFile(picture).size() <= picture.bytes.size() + 14);
  }
  Require(pictures <= size);
  // Files this small pass no limit but that of the groups. A last paragraph that holds a picture
  // and no text is none of the whole text.
  const std::string whole = ReadWholeText(bytes);
  Require(document.isCut || !document.pictures.empty() || whole == text);
  Require(PlainTextFile(whole).size() <= 2 * whole.size() + 3);
  return 0;
}
