#include "cartbrowser/CartNotes.h"

#include "cartstore/CartFiles.h"
#include "notes/TextFile.h"

namespace logchecker {

std::optional<std::string> FindCartNotes(int32_t cartNumber) {
  bool exists = false;
  std::string file = GetCartNotesFile(cartNumber, exists);
  if (!exists) return std::nullopt;
  return file;
}

void ReadNotesStart(const std::string& file, std::string& text) {
  if (!ReadTextFile(file, kNotesSearched, &text)) text.clear();
}

}  // namespace logchecker
