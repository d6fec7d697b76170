// A text file as a whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace logchecker {

// Reads the file's bytes, up to `most` of them. False when it can't be read.
bool ReadTextFile(const std::string& path, size_t most, std::string* bytes);

// Writes the file whole or not at all. Returns an error number.
int32_t WriteTextFile(const std::string& path, const std::string& bytes);

}  // namespace logchecker
