#include "common/PathText.h"

#include <algorithm>

namespace logchecker {

namespace {

constexpr std::string_view kSeparators = "\\/";

}  // namespace

bool IsPathSeparator(char c) { return kSeparators.find(c) != std::string_view::npos; }

std::string GetFileNamePart(std::string_view path) {
  const size_t separator = path.find_last_of(kSeparators);
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

std::string StripExtension(std::string_view path) {
  const size_t mark = path.find_last_of("\\/.");
  const bool hasExtension = mark != std::string_view::npos && path[mark] == '.';
  return std::string(hasExtension ? path.substr(0, mark) : path);
}

std::string GetFileTitlePart(std::string_view path) {
  return StripExtension(GetFileNamePart(path));
}

std::string GetPathPart(std::string_view path, bool withSeparator) {
  if (path.empty()) return "";
  const size_t separator = path.find_last_of(kSeparators);
  std::string folder(separator == std::string_view::npos ? std::string_view()
                                                         : path.substr(0, separator));
  if (withSeparator) folder += '\\';
  return folder;
}

std::string ShownPath(std::string path) {
  const size_t first = path.find_first_of(kSeparators);
  if (first != std::string::npos) {
    const char separator = path[first];
    std::replace(path.begin(), path.end(), separator == '/' ? '\\' : '/', separator);
  }
  return path;
}

}  // namespace logchecker
