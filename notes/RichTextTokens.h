// Rich text taken apart into its smallest pieces.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace logchecker {

// The value of a hexadecimal digit; -1 where it is none.
int HexDigit(char c);

struct RichTextToken {
  enum Kind {
    kEnd,
    kOpen,    // {
    kClose,   // }
    kByte,    // a character of the text, or of \'hh
    kWord,    // \word with or without a number
    kSymbol,  // \ and one character that is no letter
  };

  Kind kind = kEnd;
  unsigned char byte = 0;         // of a byte or a symbol
  std::string_view word;          // without the backslash
  std::optional<int32_t> number;  // behind the word; held to its type
  std::string_view data;          // of \bin, as it stands in the file
};

class RichTextTokens {
 public:
  // `bytes` must outlive the object.
  explicit RichTextTokens(std::string_view bytes) : bytes_(bytes) {}

  // Line ends of the file are passed over, and the data of \bin comes with its word.
  RichTextToken Next();
  // The printable ASCII from here to the next control or group.
  std::string_view Plain();

 private:
  RichTextToken NextControl();
  RichTextToken NextWord();
  std::optional<int32_t> Number();
  bool AtEnd() const { return place_ >= bytes_.size(); }

  std::string_view bytes_;
  size_t place_ = 0;
};

}  // namespace logchecker
