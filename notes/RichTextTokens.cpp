#include "notes/RichTextTokens.h"

#include <algorithm>

namespace logchecker {

namespace {

// Ten times this and a digit still fit.
constexpr int32_t kGreatestNumber = 200000000;

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

int HexDigit(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

RichTextToken RichTextTokens::Next() {
  while (!AtEnd() && (bytes_[place_] == '\r' || bytes_[place_] == '\n')) ++place_;
  RichTextToken token;
  if (AtEnd()) return token;
  const char c = bytes_[place_++];
  if (c == '\\') return NextControl();
  token.kind = c == '{'   ? RichTextToken::kOpen
               : c == '}' ? RichTextToken::kClose
                          : RichTextToken::kByte;
  token.byte = static_cast<unsigned char>(c);
  return token;
}

std::string_view RichTextTokens::Plain() {
  const auto isPlain = [](char c) {
    return c >= ' ' && c <= '~' && c != '\\' && c != '{' && c != '}';
  };
  const size_t begin = place_;
  while (!AtEnd() && isPlain(bytes_[place_])) ++place_;
  return bytes_.substr(begin, place_ - begin);
}

RichTextToken RichTextTokens::NextControl() {
  RichTextToken token;
  if (AtEnd()) return token;
  const char c = bytes_[place_];
  if (IsLetter(c)) return NextWord();
  ++place_;
  if (c == '\'' && place_ + 1 < bytes_.size()) {
    const int high = HexDigit(bytes_[place_]);
    const int low = HexDigit(bytes_[place_ + 1]);
    if (high >= 0 && low >= 0) {
      place_ += 2;
      token.kind = RichTextToken::kByte;
      token.byte = static_cast<unsigned char>(high * 16 + low);
      return token;
    }
  }
  token.kind = RichTextToken::kSymbol;
  token.byte = static_cast<unsigned char>(c);
  return token;
}

RichTextToken RichTextTokens::NextWord() {
  RichTextToken token;
  token.kind = RichTextToken::kWord;
  const size_t begin = place_;
  while (!AtEnd() && IsLetter(bytes_[place_])) ++place_;
  token.word = bytes_.substr(begin, place_ - begin);
  token.number = Number();
  // One blank belongs to the word.
  if (!AtEnd() && bytes_[place_] == ' ') ++place_;
  if (token.word == "bin" && token.number && *token.number > 0) {
    token.data = bytes_.substr(place_, static_cast<size_t>(*token.number));
    place_ += token.data.size();
  }
  return token;
}

std::optional<int32_t> RichTextTokens::Number() {
  size_t next = place_;
  const bool negative = next < bytes_.size() && bytes_[next] == '-';
  if (negative) ++next;
  if (next >= bytes_.size() || !IsDigit(bytes_[next])) return std::nullopt;
  int32_t number = 0;
  for (; next < bytes_.size() && IsDigit(bytes_[next]); ++next) {
    number = std::min(number * 10 + (bytes_[next] - '0'), kGreatestNumber);
  }
  place_ = next;
  return negative ? -number : number;
}

}  // namespace logchecker
