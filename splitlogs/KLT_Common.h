// What a split's log of a day is called, where it lies, how it is opened, and the split's ".ERR"
// file.
#pragma once

#include <cstdint>
#include <string>

namespace logchecker {

// Chooses the destination directory for ".ERR" files. Read and never set, so it stays false.
extern bool gUseDestinationDirectory;

// The bare name of the log of day `logDate`: the date by the split's DateFormat, with PreSuffix
// before or behind it, ".", and the extension. A format that can't be read stands in the name as it
// is, so that no log is found by it.
std::string GetLogFileName(int16_t splitNumber, int32_t logDate, bool useReconcile);

// That name in the directory that logs are read from, or in the one that has no effect.
std::string GetLogSourcePath(int16_t splitNumber, int32_t logDate, bool useReconcile);
std::string GetLogDestinationPath(int16_t splitNumber, int32_t logDate, bool useReconcile);

// Opens `path` as the split's log and closes the one that was. True when it is ready for reading. A
// missing or empty file changes nothing: the log that was open stays open. A file that can't be
// opened leaves LogFileNumber set with no file behind it. Failures go to the ".ERR" file.
bool OpenLogFile(int16_t splitNumber, const std::string& path);

// Adds a stamped line to the split's ".ERR" file, which bears the name of today's log whatever day
// the failure concerns. Failures are swallowed.
void WriteLogError(int16_t splitNumber, const std::string& message);

// Closes the logs of all splits, so that no day is read from another's log.
void CloseLogFiles();

}  // namespace logchecker
