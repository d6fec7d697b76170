#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "common/FileHelpers.h"
#include "common/TextLines.h"
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

std::string RandomLines() {
  std::string bytes;
  const int lines = *rc::gen::inRange(0, 30);
  for (int i = 0; i < lines; ++i) {
    // As long as what is read ahead, or a little off, among short ones.
    const auto length =
        *rc::gen::weightedElement<size_t>({{20, 0}, {20, 70}, {2, 65535}, {2, 65536}, {1, 140000}});
    bytes += std::string(length, 'x') + *rc::gen::element<std::string>("", "\r", "\ry", "\r\r");
    bytes += *rc::gen::weightedElement<std::string>({{9, "\n"}, {1, ""}});
  }
  return bytes;
}

RC_GTEST_PROP(TextLinesProperty, EqualTheCallsOneByOne, ()) {
  const TempFolder folder;
  folder.WriteFile("f", RandomLines());
  Files& files = Os().files;
  int16_t file = 0;
  int16_t same = 0;
  files.FreeFile(&file);
  files.FreeFile(&same);
  files.OpenForInput(file, folder.Path("f"));
  files.OpenForInput(same, folder.Path("f"));
  int64_t position = 0;
  {
    TextLines lines(file);
    const int most = *rc::gen::inRange(0, 40);
    for (int i = 0; i < most; ++i) {
      bool atEnd = false;
      bool sameAtEnd = false;
      RC_ASSERT(lines.AtEnd(&atEnd) == kNoError);
      files.EndOfFile(same, &sameAtEnd);
      RC_ASSERT(atEnd == sameAtEnd);
      if (atEnd) break;
      files.Position(same, &position);
      RC_ASSERT(lines.Position() == position);
      RC_ASSERT(lines.Next() == ReadTextLine(same));
    }
  }
  int64_t there = 0;
  files.Position(file, &there);
  files.Position(same, &position);
  RC_ASSERT(there == position);
  files.Close(file);
  files.Close(same);
}

}  // namespace
}  // namespace logchecker
