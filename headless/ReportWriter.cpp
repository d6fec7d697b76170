#include "headless/ReportWriter.h"

#include <utility>

#include "common/ErrorState.h"
#include "common/Trouble.h"
#include "platform/Platform.h"
#include "platform/StandardStreams.h"

namespace logchecker {

ReportWriter::ReportWriter(const std::string& path) : path_(path) {
  if (path_.empty()) return;
  int32_t error = Os().files.FreeFile(&file_);
  if (error == kNoError) error = Os().files.OpenForOutput(file_, path_);
  if (error != kNoError) Fail(error);
}

ReportWriter::~ReportWriter() {
  if (file_ != 0) Os().files.Abandon(file_);
}

void ReportWriter::Write(std::string_view bytes) {
  if (path_.empty()) {
    if (!WriteStandardOutput(bytes)) throw Trouble("standard output could not be written");
    return;
  }
  const int32_t error = Os().files.Write(file_, bytes);
  if (error != kNoError) Fail(error);
}

void ReportWriter::Commit() {
  if (file_ == 0) return;
  const int32_t error = Os().files.Close(std::exchange(file_, int16_t{0}));
  if (error != kNoError) Fail(error);
}

void ReportWriter::Fail(int32_t error) {
  if (file_ != 0) Os().files.Abandon(std::exchange(file_, int16_t{0}));
  throw Trouble(path_ + " could not be written: " + ErrorText(error));
}

}  // namespace logchecker
