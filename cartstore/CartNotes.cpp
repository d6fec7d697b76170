#include "cartstore/CartNotes.h"

#include <algorithm>
#include <string_view>

#include "cartstore/CartFiles.h"
#include "platform/Platform.h"

namespace logchecker {

namespace {

int32_t ReadStart(Files& files, int16_t number, std::string& text) {
  while (text.size() < kNotesSearched) {
    std::string_view bytes;
    const int32_t error = files.Peek(number, &bytes);
    if (error != kNoError) return error;
    if (bytes.empty()) break;
    const size_t taken = std::min(bytes.size(), kNotesSearched - text.size());
    text.append(bytes.substr(0, taken));
    files.Skip(number, taken);
  }
  return kNoError;
}

}  // namespace

std::optional<std::string> FindCartNotes(int32_t cartNumber) {
  bool exists = false;
  std::string file = GetCartNotesFile(cartNumber, exists);
  if (!exists) return std::nullopt;
  return file;
}

void ReadNotesStart(const std::string& file, std::string& text) {
  text.clear();
  Files& files = Os().files;
  int16_t number = 0;
  if (files.FreeFile(&number) != kNoError) return;
  int32_t error = files.OpenForInput(number, file);
  if (error == kNoError) error = ReadStart(files, number, text);
  files.Close(number);
  if (error != kNoError) text.clear();
}

}  // namespace logchecker
