#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "common/FileHelpers.h"
#include "platform/Platform.h"
#include "tests/support/TempFolder.h"

namespace logchecker {
namespace {

// One character at a time, with the test for the end before the character is added.
std::string PlainLine(const std::string& bytes, size_t& next) {
  std::string line;
  if (next >= bytes.size()) return line;
  char c = bytes[next++];
  while (c != '\n' && next < bytes.size()) {
    if (c != '\r') line += c;
    c = bytes[next++];
  }
  return line;
}

RC_GTEST_PROP(ReadTextLineProperty, EqualsTheReadingByCharacters, ()) {
  const auto bytes = *rc::gen::container<std::string>(
      rc::gen::oneOf(rc::gen::element('\n', '\r', ' ', 'A', '\0'), rc::gen::arbitrary<char>()));
  const TempFolder folder;
  folder.WriteFile("f", bytes);
  Files& files = Os().files;
  int16_t file = 0;
  files.FreeFile(&file);
  files.OpenForInput(file, folder.Path("f"));
  size_t next = 0;
  bool atEnd = false;
  files.EndOfFile(file, &atEnd);
  while (!atEnd) {
    RC_ASSERT(ReadTextLine(file) == PlainLine(bytes, next));
    int64_t position = 0;
    files.EndOfFile(file, &atEnd);
    files.Position(file, &position);
    RC_ASSERT(position == static_cast<int64_t>(next) + 1);
  }
  RC_ASSERT(next == bytes.size());
  files.Close(file);
}

}  // namespace
}  // namespace logchecker
