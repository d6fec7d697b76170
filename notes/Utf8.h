// UTF-8 and UTF-16 as a note's reader needs them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace logchecker {

inline constexpr char32_t kReplacement = 0xFFFD;

// How many bytes the character that begins with this one has; 0 where none begins with it.
size_t Utf8Length(unsigned char first);

// The character that `bytes` are, whole; U+FFFD where they are none.
char32_t Utf8Character(std::string_view bytes);

bool IsUtf8(std::string_view bytes);

// The bytes without the beginning of a character that their end cuts.
std::string_view WithoutCutCharacter(std::string_view utf8);

// Of UTF-8: how many characters it has, and the first so many of them.
size_t CountCharacters(std::string_view utf8);
std::string_view FirstCharacters(std::string_view utf8, size_t most);

// Adds a code point as UTF-8; one that is none becomes U+FFFD.
void AppendUtf8(std::string& text, char32_t codePoint);

// What is no UTF-8 becomes U+FFFD.
std::string CleanUtf8(std::string_view bytes);

// Halves of pairs that stand alone, and a last odd byte, become U+FFFD.
std::string FromUtf16(std::string_view bytes, bool bigEndian);

}  // namespace logchecker
