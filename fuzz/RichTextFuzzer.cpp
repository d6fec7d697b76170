// Any bytes as a note.
#include "fuzz/Fuzzer.h"
#include "notes/RichText.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace logchecker;
  const RichTextDocument document = ReadRichText(AsText(data, size));
  // A byte of the file becomes at most one character, of at most four bytes.
  Require(document.PlainText().size() <= 4 * size + 4);
  return 0;
}
