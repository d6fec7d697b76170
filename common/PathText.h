// Parts of a path. Both separators, "\" and "/", count.
#pragma once

#include <string>
#include <string_view>

namespace logchecker {

bool IsPathSeparator(char c);

// The text behind the last separator: the path whole without one, "" when it ends in one.
std::string GetFileNamePart(std::string_view path);

// The text before the last "." of the last part; the path whole where that part has none.
std::string StripExtension(std::string_view path);

// The file name without folder and extension.
std::string GetFileTitlePart(std::string_view path);

// The text before the last separator, with "\" behind it when `withSeparator` is set, whichever of
// the two the path used. A path that has none gives "" or "\", as for a separator in front of it:
// this is meant.
std::string GetPathPart(std::string_view path, bool withSeparator);

// A station path for people, with one separator throughout: the first that it has.
std::string ShownPath(std::string path);

}  // namespace logchecker
