// The notes of a cart: found for showing, and read for the search.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace logchecker {

// A search looks at no more than this of a notes file.
inline constexpr size_t kNotesSearched = 10000;

// The cart's notes file; nothing when the cart has none or lies outside the store.
std::optional<std::string> FindCartNotes(int32_t cartNumber);

// The first kNotesSearched bytes of a notes file as they lie there, or all of a shorter one; rich
// text comes with its control words. A file that can't be opened or read to there leaves `text`
// empty. `text` is the caller's so that its memory is used again.
void ReadNotesStart(const std::string& file, std::string& text);

}  // namespace logchecker
