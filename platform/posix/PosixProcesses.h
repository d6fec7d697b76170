// Children of this program.
#pragma once

#include <chrono>
#include <map>
#include <string>

#include "platform/Processes.h"
#include "platform/posix/ChildProcess.h"
#include "platform/posix/OutputSpool.h"

namespace logchecker {

class PosixProcesses : public Processes {
 public:
  // `mostOutput` is the number of bytes that a child may write.
  explicit PosixProcesses(int64_t mostOutput = kMostChildOutput) : mostOutput_(mostOutput) {}

  int32_t Processors() override;
  int32_t Start(const ChildOrder& order, int32_t* child) override;
  int32_t Wait(int32_t* child, ChildEnd* end) override;
  int32_t ReadOutput(int32_t child, int64_t position, std::string_view* bytes) override;
  void Release(int32_t child) override;

 private:
  using Instant = std::chrono::steady_clock::time_point;

  struct Running {
    ChildProcess process;
    SpooledOutput output;
    std::string errors;
    int32_t seconds = 0;
    Instant deadline;
    std::string reason;  // why it is being ended
    bool asked = false;  // it was asked to end
  };

  void Listen();
  void ReadOutputOf(Running& child);
  static void ReadErrorsOf(Running& child);
  // Ends it when its time is over, and when it does not go, at once. True once it was left behind.
  static bool Hurry(Running& child, Instant now);
  bool IsOver(Running& child, ChildEnd* end);

  int64_t mostOutput_;
  OutputSpool spool_;
  std::map<int32_t, Running> running_;
  std::map<int32_t, SpooledOutput> ended_;
  int32_t last_ = 0;
};

}  // namespace logchecker
