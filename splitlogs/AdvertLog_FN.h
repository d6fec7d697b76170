// The lines of an advert log. Either form of a line may be passed to any reader.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace logchecker {

// A line of the old form, which a "|" at column 6 marks, as a line of the current form; any other
// line unchanged.
//
//   old       current
//   1-5       1-5       time as HH:MM
//             6-8       ":00"
//   6-11      9-14      separator, TX chain code, filler
//             15-18     four blanks
//   12-47     19-54     cart number, filler, description, one more
//             55        a blank
//   48-       56-       four more, reference from 60 on
std::string NormaliseLogLine(std::string_view line);

// Seconds into the day, from hours (columns 1-2), minutes (4-5) and seconds (7-8). Not held to a
// day: 24:30:00 is 88200. -1 for the empty line.
float GetLineTime(std::string_view line);

// Columns 60 to the end, as they stand.
std::string GetLineReference(std::string_view line);

// Columns 24 to 53, as they stand.
std::string GetLineDescription(std::string_view line);

// The number in columns 15 to 22; 0 where there is none.
int32_t GetLineCart(std::string_view line);

// Columns 10 to 13, trimmed and in upper case.
std::string GetLineTXChainCode(std::string_view line);

// The same readers on one line that is taken apart once, for those who want several of its fields.
class LogLine {
 public:
  // `line` must outlive the object, and the views that it gives.
  explicit LogLine(std::string_view line);
  LogLine(const LogLine&) = delete;
  LogLine& operator=(const LogLine&) = delete;

  float Time() const;
  std::string_view Reference() const;
  std::string_view Description() const;
  int32_t Cart() const;
  // What the TX chain code is made of, as it stands.
  std::string_view TXChainColumns() const;
  std::string TXChainCode() const;

 private:
  std::string normalised_;  // of a short line of the old form
  std::string_view text_;
  bool hasOldColumns_ = false;
};

}  // namespace logchecker
