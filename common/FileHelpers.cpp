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

std::string_view WithoutReturns(std::string_view line, std::string& spare) {
  const size_t firstReturn = line.find('\r');
  if (firstReturn == std::string_view::npos) return line;
  if (firstReturn + 1 == line.size()) return line.substr(0, firstReturn);
  spare = line;
  spare.erase(std::remove(spare.begin(), spare.end(), '\r'), spare.end());
  return spare;
}

std::string_view ReadTextLine(int16_t fileNumber, std::string& spare) {
  spare.clear();
  if (fileNumber <= 0) return spare;
  Files& files = Os().files;
  bool atEnd = false;
  while (!atEnd) {
    std::string_view bytes;
    const bool failed = !Succeeded(files.Peek(fileNumber, &bytes)) ||
                        !Succeeded(spare.size() > kLongestLine ? kOverflow : kNoError);
    atEnd = failed || bytes.empty();
    const size_t lineFeed = bytes.find('\n');
    spare.append(bytes.substr(0, lineFeed));
    if (lineFeed != std::string_view::npos) {
      files.Skip(fileNumber, lineFeed + 1);
      break;
    }
    files.Skip(fileNumber, bytes.size());
  }
  if (atEnd && !spare.empty()) spare.pop_back();
  return WithoutReturns(spare, spare);
}

std::string ReadTextLine(int16_t fileNumber) {
  std::string spare;
  return std::string(ReadTextLine(fileNumber, spare));
}

std::string GetWindowsFolder() { return Os().system.WindowsFolder(); }

}  // namespace logchecker
