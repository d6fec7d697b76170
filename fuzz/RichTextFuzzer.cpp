// Any bytes as a note.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "printing/RichText.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const logchecker::RichTextDocument document = logchecker::ReadRichText(bytes);
  // A byte of the file becomes at most one character, of at most four bytes.
  if (document.PlainText().size() > 4 * size + 4) std::abort();
  return 0;
}
