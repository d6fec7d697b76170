// Text of a station as text of a page. Whoever names a split or writes a log writes no markup: all
// of it goes through here, as UTF-8, and comes out as characters that a reader sees.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace logchecker {

// The text for an element's content or a quoted attribute. Markup is escaped; a control character
// and a mark that turns the direction of text show as \u202e does, tabulators and line ends are
// blanks; bytes that are no UTF-8 become U+FFFD.
std::string HtmlText(std::string_view utf8);

// HtmlText in an element that keeps the text's direction to itself.
std::string Isolated(std::string_view utf8);

// No more than so many characters of the text, of which the last is "…" where it was longer.
std::string Shortened(std::string_view utf8, size_t mostCharacters);

// A text above this many characters is long in a table; a line of its own has room for more.
inline constexpr size_t kLongText = 80;
inline constexpr size_t kLongLine = 300;
// More of a text than this is nowhere shown: the end of a log's line may be as long as the log.
inline constexpr size_t kLongestText = 10000;

// Isolated, and a text of more than `mostCharacters` folded: its beginning, with the whole behind
// it (up to kLongestText) for whoever opens it. It may stand where a block may, so in a table's
// cell, but not in one that is a heading.
std::string Folded(std::string_view utf8, size_t mostCharacters = kLongText);

}  // namespace logchecker
