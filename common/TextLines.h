// The lines of a file opened for input, one after the other.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace logchecker {

// Gives what the calls for the end, the position and the next line give, but goes through the bytes
// that were read ahead by itself and moves the file on when they are used up, and at its own end.
class TextLines {
 public:
  explicit TextLines(int16_t fileNumber) : file_(fileNumber) {}
  ~TextLines() { MoveOn(); }
  TextLines(const TextLines&) = delete;
  TextLines& operator=(const TextLines&) = delete;

  // Whether there is no line any more. Returns an error number.
  int32_t AtEnd(bool* atEnd) {
    *atEnd = false;
    return bytes_.empty() ? ReadAhead(atEnd) : 0;
  }
  // Where the next line begins, in bytes from 1. Good where AtEnd has said that there is one.
  int64_t Position() const { return position_; }
  // The next line, as ReadTextLine gives it; good until the next call.
  std::string_view Next();

 private:
  int32_t ReadAhead(bool* atEnd);
  void MoveOn();

  int16_t file_;
  std::string_view bytes_;  // read ahead and not used up
  size_t used_ = 0;         // read ahead, and the file not yet moved on behind them
  int64_t position_ = 1;
  std::string spare_;
};

}  // namespace logchecker
