// SHA-256, by which a page names its own style to the browser.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace logchecker {

using Sha256Digest = std::array<uint8_t, 32>;

Sha256Digest Sha256(std::string_view bytes);

// The digest in base 64, 44 characters.
std::string Sha256Base64(std::string_view bytes);

}  // namespace logchecker
