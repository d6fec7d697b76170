// Text from outside that may hold anything, as a line that can be read.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace logchecker {

// The text with a blank for each character that can't be seen, such as a line feed or a tabulator.
std::string VisibleText(std::string_view stationText);
QString ToVisibleQString(std::string_view stationText);

}  // namespace logchecker
