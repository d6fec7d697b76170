#include "notes/TextFile.h"

#include <algorithm>
#include <string_view>

#include "platform/Platform.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

int32_t ReadUpTo(int16_t number, size_t most, std::string& bytes) {
  Files& files = Os().files;
  while (bytes.size() < most) {
    std::string_view part;
    const int32_t error = files.Peek(number, &part);
    if (error != kNoError) return error;
    if (part.empty()) break;
    const size_t taken = std::min(part.size(), most - bytes.size());
    bytes.append(part.substr(0, taken));
    files.Skip(number, taken);
  }
  return kNoError;
}

}  // namespace

bool ReadTextFile(const std::string& path, size_t most, std::string* bytes) {
  bytes->clear();
  Files& files = Os().files;
  int16_t number = 0;
  if (files.FreeFile(&number) != kNoError) return false;
  int32_t error = files.OpenForInput(number, path);
  if (error == kNoError) error = ReadUpTo(number, most, *bytes);
  files.Close(number);
  return error == kNoError;
}

int32_t WriteTextFile(const std::string& path, const std::string& bytes) {
  Files& files = Os().files;
  int16_t number = 0;
  int32_t error = files.FreeFile(&number);
  if (error != kNoError) return error;
  error = files.OpenForOutput(number, path);
  if (error == kNoError) error = files.Write(number, bytes);
  if (error != kNoError) {
    files.Abandon(number);
    return error;
  }
  return files.Close(number);
}

std::string PlainTextFile(std::string_view utf8) {
  std::string lines;
  lines.reserve(utf8.size());
  for (const char c : utf8) {
    if (c == '\n') lines += '\r';
    lines += c;
  }
  std::string stationText;
  return FromUtf8(lines, &stationText) ? stationText : "\xEF\xBB\xBF" + lines;
}

}  // namespace logchecker
