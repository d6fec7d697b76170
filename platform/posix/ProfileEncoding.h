// How the bytes of a profile file are text: a mark at their beginning tells.
#pragma once

#include <string>
#include <string_view>

namespace logchecker {

// A file without a mark is in the station's code page, each byte a character.
enum class ProfileEncoding { kStation, kUtf8, kUtf16Little, kUtf16Big };

ProfileEncoding EncodingOfProfile(std::string_view bytes);

// The text behind the mark: in the station's code page as it stands, else in UTF-8, which holds
// every character of the others.
std::string DecodeProfile(std::string_view bytes, ProfileEncoding encoding);

// The byte behind the last 16-bit unit, where a file was cut off within one; else empty.
std::string_view HalfUnit(std::string_view bytes, ProfileEncoding encoding);

// The way back, with the mark in front.
std::string EncodeProfile(std::string_view text, ProfileEncoding encoding);

}  // namespace logchecker
