#include "splitlogs/KLT_Common.h"

#include "common/ErrorState.h"
#include "common/GeneralFunctions.h"
#include "platform/Platform.h"
#include "splitlogs/LogNameText.h"
#include "splitlogs/SplitSettings.h"

namespace logchecker {

bool gUseDestinationDirectory = false;

std::string GetLogFileName(int16_t splitNumber, int32_t logDate, bool useReconcile) {
  const SplitSettings& settings = SettingsOf(splitNumber);
  const std::string& extension = useReconcile ? settings.ReconcileExtension : settings.Extension;
  const std::string date = FormatDate(logDate, settings.DateFormat).value_or(settings.DateFormat);
  return LogNameText(date, settings.PreSuffix, settings.Suffix != 0, extension);
}

std::string GetLogSourcePath(int16_t splitNumber, int32_t logDate, bool useReconcile) {
  return SettingsOf(splitNumber).LogSourceDirectory + "\\" +
         GetLogFileName(splitNumber, logDate, useReconcile);
}

std::string GetLogDestinationPath(int16_t splitNumber, int32_t logDate, bool useReconcile) {
  return SettingsOf(splitNumber).LogDestinationDirectory + "\\" +
         GetLogFileName(splitNumber, logDate, useReconcile);
}

namespace {

// Writes a failed step to the ".ERR" file and clears the error.
void ReportStep(int16_t splitNumber, const char* step) {
  WriteLogError(splitNumber, "[Code:E" + std::to_string(gErrorState.Number) + "]" + step);
  ClearError();
}

void StampLogFile(SplitSettings& settings) {
  double dateTime = 0;
  if (!Succeeded(Os().files.FileDateTime(settings.CurrentLogPath, &dateTime))) return;
  const DayAndSeconds stamp = SplitDateTime(dateTime);
  settings.LogFileDay = stamp.Days;
  settings.LogFileSeconds = stamp.Seconds;
}

}  // namespace

bool OpenLogFile(int16_t splitNumber, const std::string& path) {
  ClearError();
  if (!(GetFileLength(path) > 0)) return false;
  SplitSettings& settings = SettingsOf(splitNumber);
  Files& files = Os().files;
  if (settings.LogFileNumber > 0) {
    if (!Succeeded(files.Close(settings.LogFileNumber))) {
      ReportStep(splitNumber, "Closing the old log file during OpenLogFile");
    }
    settings.LogFileNumber = 0;
  }
  settings.LogFileDay = 0;
  settings.LogFileSeconds = 0;
  Succeeded(files.FreeFile(&settings.LogFileNumber));
  if (settings.LogFileNumber == 0) return false;
  settings.CurrentLogPath = path;
  if (!Succeeded(files.OpenForInput(settings.LogFileNumber, settings.CurrentLogPath))) {
    ReportStep(splitNumber, "Opening the log file during OpenLogFile");
    return false;
  }
  StampLogFile(settings);
  if (gErrorState.Number > 0 && gErrorState.Number != kFileNotFound) {
    ShowErrorMessage("checking that the log file was stored locally", gErrorState.Number, false);
    return false;
  }
  return true;
}

void WriteLogError(int16_t splitNumber, const std::string& message) {
  const int32_t today = Today();
  const std::string path = gUseDestinationDirectory
                               ? GetLogDestinationPath(splitNumber, today, true)
                               : GetLogSourcePath(splitNumber, today, true);
  AppendToLogFile(GetPathPart(path, false) + "\\" + GetFileTitlePart(path) + ".ERR", true, message);
}

void CloseLogFiles() {
  for (SplitSettings& settings : gSplitSettings) {
    if (settings.LogFileNumber > 0) Os().files.Close(settings.LogFileNumber);
    settings.LogFileNumber = 0;
  }
}

}  // namespace logchecker
