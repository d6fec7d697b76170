#include "common/ui/StationQString.h"

#include "platform/StationText.h"

namespace logchecker {

QString ToQString(std::string_view stationText) {
  const std::string utf8 = ToUtf8(stationText);
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

bool FromQString(const QString& text, std::string* stationText) {
  const QByteArray utf8 = text.toUtf8();
  return FromUtf8(std::string_view(utf8.constData(), static_cast<size_t>(utf8.size())),
                  stationText);
}

std::string FromQString(const QString& text) {
  std::string stationText;
  FromQString(text, &stationText);
  return stationText;
}

QString AsMenuText(const QString& text) { return QString(text).replace("&", "&&"); }

QString AsTitle(const QString& text) { return QString(text).replace("[*]", "[*][*]"); }

QString AsToolTip(const QString& text) {
  return "<p>" + text.toHtmlEscaped().replace('\n', "<br>") + "</p>";
}

}  // namespace logchecker
