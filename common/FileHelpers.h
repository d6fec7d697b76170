// Files: is it there, how long is it, its next line, one more line for a log.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace logchecker {

// The file's length in bytes, or -1 when it can't be had for any reason. A result of 0 or more is
// the program's one test for whether a file exists.
double GetFileLength(const std::string& path);

// True when the file can be opened with no access rights asked; works for a file that another
// program holds open, where a length test may fail.
bool FileCanBeOpened(const std::string& path);

// Adds a line to a file, with the short date and the time in front when `stamped`. An empty path
// does nothing, and failures are swallowed.
void AppendToLogFile(const std::string& path, bool stamped, const std::string& text);

// A line of more bytes than this is no line of a text file.
inline constexpr size_t kLongestLine = size_t{512} * 1024 * 1024;

// The next line of a file opened for input, without carriage returns and its line feed; "" at the
// end of the file. The last character of a file that does not end in a line feed is lost: the loop
// tests for the end before it adds, and this is meant. A failing read ends the line and stands in
// the error state.
std::string ReadTextLine(int16_t fileNumber);
// The same into `spare`, whose memory is used again, as a view of it.
std::string_view ReadTextLine(int16_t fileNumber, std::string& spare);
// `line` without carriage returns: a view of it where there is none or one at its end, else of
// `spare`.
std::string_view WithoutReturns(std::string_view line, std::string& spare);

// Makes `bytes` the whole file, or leaves the file that was there. "" on success, otherwise one
// clear line.
std::string WriteWholeFile(const std::string& path, const std::string& bytes);

// The folder of profile files, without a separator at its end.
std::string GetWindowsFolder();

}  // namespace logchecker
