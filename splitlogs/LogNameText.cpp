#include "splitlogs/LogNameText.h"

namespace logchecker {

std::string LogNameText(const std::string& dateText, const std::string& preSuffix, bool suffix,
                        const std::string& extension) {
  return (suffix ? dateText + preSuffix : preSuffix + dateText) + "." + extension;
}

}  // namespace logchecker
