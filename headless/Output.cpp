#include "headless/Output.h"

#include <algorithm>

#include "common/ErrorState.h"
#include "platform/Platform.h"
#include "platform/StandardStreams.h"
#include "platform/StationText.h"

namespace logchecker {

namespace {

int32_t WriteWhole(const std::string& path, const std::string& bytes) {
  Files& files = Os().files;
  int16_t file = 0;
  int32_t error = files.FreeFile(&file);
  if (error == kNoError) error = files.OpenForOutput(file, path);
  if (error == kNoError) error = files.Write(file, bytes);
  if (error == kNoError) return files.Close(file);
  files.Abandon(file);
  return error;
}

}  // namespace

std::string WriteReport(const std::string& path, const std::string& bytes) {
  if (path.empty()) {
    return WriteStandardOutput(bytes) ? "" : "standard output could not be written";
  }
  const int32_t error = WriteWhole(path, bytes);
  return error == kNoError ? "" : path + " could not be written: " + ErrorText(error);
}

std::string FieldText(std::string_view stationText) {
  std::string text(stationText);
  std::replace_if(
      text.begin(), text.end(),
      [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }, ' ');
  return ToUtf8(text);
}

}  // namespace logchecker
