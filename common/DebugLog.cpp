#include "common/DebugLog.h"

#include "common/DatePicture.h"
#include "common/FileHelpers.h"
#include "platform/Platform.h"

namespace logchecker {

int32_t gDebugLevel = 0;
std::string gDebugLogName;
int32_t gDebugIndent = 0;

void WriteDebugLogIndented(const std::string& text, int32_t level, IndentStep indentStep) {
  constexpr int32_t kEverything = -1;
  constexpr int32_t kUsualLevel = 5;
  constexpr size_t kIndentWidth = 4;
  if (gDebugLevel == 0) return;
  if (gDebugLevel != kEverything) {
    if (level == -1) level = kUsualLevel;
    if (level > gDebugLevel) return;
  }
  if (indentStep == IndentStep::kBackBefore && gDebugIndent > 0) --gDebugIndent;
  if (indentStep == IndentStep::kReset) gDebugIndent = 0;
  const double now = Os().clock.Now();
  const std::string name = gDebugLogName.empty() ? Os().system.ProgramName() : gDebugLogName;
  const std::string file = "c:\\" + name + "." + FormatDate(now, "yyyymmdd").value_or("") + ".log";
  const std::string indent(static_cast<size_t>(gDebugIndent) * kIndentWidth, ' ');
  AppendToLogFile(file, false, FormatDate(now, "hh:nn:ss").value_or("") + " " + indent + text);
  if (indentStep == IndentStep::kDeeperAfter) ++gDebugIndent;
}

void WriteDebugLog(const std::string& text, int32_t level) {
  WriteDebugLogIndented(text, level, IndentStep::kKeep);
}

}  // namespace logchecker
