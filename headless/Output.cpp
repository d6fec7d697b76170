#include "headless/Output.h"

#include <algorithm>

#include "common/FileHelpers.h"
#include "platform/StandardStreams.h"
#include "platform/StationText.h"

namespace logchecker {

std::string WriteReport(const std::string& path, const std::string& bytes) {
  if (path.empty()) {
    return WriteStandardOutput(bytes) ? "" : "standard output could not be written";
  }
  return WriteWholeFile(path, bytes);
}

std::string FieldText(std::string_view stationText) {
  std::string text = WithoutControls(stationText);
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == '\n' || c == '\t'; }, ' ');
  return ToUtf8(text);
}

}  // namespace logchecker
