// The bytes of a report, one by one and within limits.
#pragma once

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>

#include "headless/ReportReader.h"

namespace logchecker {

// Gives the parser its bytes one by one, and none any more once a limit is passed.
class ReportBytes {
 public:
  explicit ReportBytes(const NextBytes& next) : next_(next) { More(); }

  bool AtEnd() const { return place_ == end_; }
  char Current() const { return *place_; }
  void Advance() {
    if (++place_ == end_) More();
  }
  // How many there were so far.
  size_t Count() const { return before_ + static_cast<size_t>(place_ - begin_); }
  // A value has been read, or a whole report.
  void NoteValue() { sinceValue_ = Count(); }
  void NoteReport() { sinceReport_ = Count(); }
  // "" unless a limit has been passed.
  const std::string& failure() const { return failure_; }

 private:
  void More();

  const NextBytes& next_;
  std::string_view rest_;  // behind the piece
  const char* begin_ = nullptr;
  const char* place_ = nullptr;
  const char* end_ = nullptr;
  size_t before_ = 0;  // in the pieces before this one
  size_t sinceValue_ = 0;
  size_t sinceReport_ = 0;
  std::string failure_;
};

// What the parser wants: all copies stand at the same place.
class ReportByteIterator {
 public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = char;

  explicit ReportByteIterator(ReportBytes* bytes) : bytes_(bytes) {}
  char operator*() const { return bytes_->Current(); }
  ReportByteIterator& operator++() {
    bytes_->Advance();
    return *this;
  }
  // Only ever asked against the end.
  bool operator!=(const ReportByteIterator&) const { return !bytes_->AtEnd(); }
  bool operator==(const ReportByteIterator&) const { return bytes_->AtEnd(); }

 private:
  ReportBytes* bytes_;
};

}  // namespace logchecker
