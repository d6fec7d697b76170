#include "common/FileHelpers.h"

#include <algorithm>

#include "common/DatePicture.h"
#include "common/ErrorState.h"
#include "common/PathText.h"
#include "platform/Platform.h"

namespace logchecker {

double GetFileLength(const std::string& path) {
  int64_t length = -1;
  return Os().files.FileLength(path, &length) == kNoError ? static_cast<double>(length) : -1;
}

bool FileCanBeOpened(const std::string& path) { return Os().files.ProbeFile(path) == kNoError; }

void AppendToLogFile(const std::string& path, bool stamped, const std::string& text) {
  if (path.empty()) return;
  std::string line = text + "\r\n";
  if (stamped) {
    line.insert(0, FormatDate(Os().clock.Now(), "ddddd hh:nn:ss").value_or("") + " ");
  }
  Files& files = Os().files;
  int16_t number = 0;
  if (files.FreeFile(&number) != kNoError) return;
  if (files.OpenForAppend(number, path) == kNoError) files.Write(number, line);
  files.Close(number);
}

std::string WriteWholeFile(const std::string& path, const std::string& bytes) {
  Files& files = Os().files;
  int16_t number = 0;
  int32_t error = files.FreeFile(&number);
  if (error == kNoError) error = files.OpenForOutput(number, path);
  if (error == kNoError) error = files.Write(number, bytes);
  if (error == kNoError) {
    error = files.Close(number);
  } else {
    files.Abandon(number);
  }
  return error == kNoError ? "" : ShownPath(path) + " could not be written: " + ErrorText(error);
}

namespace {

std::string_view WithoutReturns(std::string& line, size_t firstReturn) {
  line.erase(std::remove(line.begin() + static_cast<std::ptrdiff_t>(firstReturn), line.end(), '\r'),
             line.end());
  return line;
}

// Of a line that the bytes read ahead do not hold to its end.
std::string_view ReadInPieces(int16_t fileNumber, std::string& line) {
  Files& files = Os().files;
  line.clear();
  bool atEnd = false;
  while (!atEnd) {
    std::string_view bytes;
    const bool failed = !Succeeded(files.Peek(fileNumber, &bytes)) ||
                        !Succeeded(line.size() > kLongestLine ? kOverflow : kNoError);
    atEnd = failed || bytes.empty();
    const size_t lineFeed = bytes.find('\n');
    line.append(bytes.substr(0, lineFeed));
    if (lineFeed != std::string_view::npos) {
      files.Skip(fileNumber, lineFeed + 1);
      break;
    }
    files.Skip(fileNumber, bytes.size());
  }
  if (atEnd && !line.empty()) line.pop_back();
  const size_t firstReturn = line.find('\r');
  return firstReturn == std::string::npos ? line : WithoutReturns(line, firstReturn);
}

}  // namespace

std::string_view ReadTextLine(int16_t fileNumber, std::string& spare) {
  if (fileNumber <= 0) return {};
  Files& files = Os().files;
  std::string_view bytes;
  if (!Succeeded(files.Peek(fileNumber, &bytes))) return {};
  const size_t lineFeed = bytes.find('\n');
  if (lineFeed == std::string_view::npos) return ReadInPieces(fileNumber, spare);
  files.Skip(fileNumber, lineFeed + 1);
  const std::string_view line = bytes.substr(0, lineFeed);
  const size_t firstReturn = line.find('\r');
  if (firstReturn == std::string_view::npos) return line;
  if (firstReturn + 1 == lineFeed) return line.substr(0, firstReturn);
  spare = line;
  return WithoutReturns(spare, firstReturn);
}

std::string ReadTextLine(int16_t fileNumber) {
  std::string spare;
  return std::string(ReadTextLine(fileNumber, spare));
}

std::string GetWindowsFolder() { return Os().system.WindowsFolder(); }

}  // namespace logchecker
