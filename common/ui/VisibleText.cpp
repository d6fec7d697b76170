#include "common/ui/VisibleText.h"

#include <array>

#include "common/ui/StationQString.h"

namespace logchecker {

namespace {

constexpr size_t kCharacters = 256;

std::array<bool, kCharacters> FindVisible() {
  std::array<bool, kCharacters> visible{};
  for (size_t code = 0; code < kCharacters; ++code) {
    const auto character = static_cast<char>(code);
    const QString text = ToQString(std::string_view(&character, 1));
    visible[code] = text.size() == 1 && text.at(0).isPrint();
  }
  return visible;
}

}  // namespace

std::string VisibleText(std::string_view stationText) {
  static const std::array<bool, kCharacters> visible = FindVisible();
  std::string text(stationText);
  for (char& character : text) {
    if (!visible[static_cast<unsigned char>(character)]) character = ' ';
  }
  return text;
}

QString ToVisibleQString(std::string_view stationText) {
  return ToQString(VisibleText(stationText));
}

}  // namespace logchecker
