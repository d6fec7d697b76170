#include "common/TextLines.h"

#include "common/FileHelpers.h"
#include "platform/Platform.h"

namespace logchecker {

void TextLines::MoveOn() {
  if (used_ > 0) Os().files.Skip(file_, used_);
  used_ = 0;
  bytes_ = {};
}

int32_t TextLines::ReadAhead(bool* atEnd) {
  MoveOn();
  Files& files = Os().files;
  int32_t error = files.EndOfFile(file_, atEnd);
  if (error == kNoError && !*atEnd) error = files.Position(file_, &position_);
  if (error == kNoError && !*atEnd) error = files.Peek(file_, &bytes_);
  return error;
}

std::string_view TextLines::Next() {
  const size_t lineFeed = bytes_.find('\n');
  if (lineFeed == std::string_view::npos) {
    MoveOn();
    return ReadTextLine(file_, spare_);
  }
  std::string_view line = bytes_.substr(0, lineFeed);
  bytes_.remove_prefix(lineFeed + 1);
  used_ += lineFeed + 1;
  position_ += static_cast<int64_t>(lineFeed) + 1;
  return WithoutReturns(line, spare_);
}

}  // namespace logchecker
