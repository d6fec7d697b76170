// Tells the watch what a check asks the system for.
#pragma once

#include <memory>

#include "headless/WatchedFiles.h"
#include "platform/Platform.h"

namespace logchecker {

// For as long as it lives, each question about a path goes to the platform that was in force, and
// to `watched`. A check lies in between: it begins with this and ends with it.
class ReadRecorder {
 public:
  explicit ReadRecorder(WatchedFiles& watched);
  ~ReadRecorder();
  ReadRecorder(const ReadRecorder&) = delete;
  ReadRecorder& operator=(const ReadRecorder&) = delete;

 private:
  struct Parts;

  WatchedFiles& watched_;
  std::unique_ptr<Parts> parts_;
  Platform& before_;
};

}  // namespace logchecker
