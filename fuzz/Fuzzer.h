// What the fuzzers share. Each takes any bytes and ends the process where a rule is broken.
#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace logchecker {

// Ends the process, so that the fuzzer keeps the input, when `held` is false.
inline void Require(bool held) {
  if (!held) std::abort();
}

inline std::string_view AsText(const uint8_t* data, size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace logchecker
