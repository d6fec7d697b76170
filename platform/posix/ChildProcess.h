// One child: started, listened to, ended.
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/posix/PosixEndings.h"

namespace logchecker {

// An open end of a pipe, closed with it.
class PipeEnd {
 public:
  PipeEnd() = default;
  explicit PipeEnd(int descriptor) : descriptor_(descriptor) {}
  ~PipeEnd() { Close(); }
  PipeEnd(const PipeEnd&) = delete;
  PipeEnd& operator=(const PipeEnd&) = delete;

  void TakeFrom(PipeEnd& other) { Take(std::exchange(other.descriptor_, -1)); }
  void Take(int descriptor) {
    Close();
    descriptor_ = descriptor;
  }
  void Close();
  int get() const { return descriptor_; }
  bool IsOpen() const { return descriptor_ >= 0; }

 private:
  int descriptor_ = -1;
};

// A child and whatever it starts are a group of processes of their own, which goes with it.
class ChildProcess {
 public:
  ChildProcess() = default;
  ~ChildProcess() { EndNow(); }
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;

  // Starts the file `program` with `words`, the first of which is its name for itself, and `input`
  // to read. An errno code, 0 for success.
  int Start(const std::string& program, const std::vector<std::string>& words,
            std::string_view input);

  // Whether it has ended; then `status` is what it left. Whatever it started is ended with it.
  bool HasEnded(int* status);
  // Asks it to end, and the group.
  void AskToEnd();
  // Ends the group at once. One that the system itself holds fast is left behind.
  void EndNow();

  PipeEnd output;  // read ends that don't block
  PipeEnd errors;

 private:
  pid_t process_ = -1;
  VanishingGroup vanishing_;
};

}  // namespace logchecker
