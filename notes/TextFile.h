// A text file as a whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace logchecker {

// Reads the file's bytes, up to `most` of them. False when it can't be read.
bool ReadTextFile(const std::string& path, size_t most, std::string* bytes);

// Writes the file whole or not at all. Returns an error number.
int32_t WriteTextFile(const std::string& path, const std::string& bytes);

// A plain text file of this text: its line feeds as CR LF, in station text, or where that can't
// hold it in UTF-8 with its mark.
std::string PlainTextFile(std::string_view utf8);

}  // namespace logchecker
