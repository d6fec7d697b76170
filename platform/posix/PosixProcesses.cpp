#include "platform/posix/PosixProcesses.h"

#include <poll.h>
#include <sched.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "platform/ErrorNumbers.h"
#include "platform/StationText.h"
#include "platform/posix/PosixErrors.h"

namespace logchecker {

namespace {

// How long a child may take that was asked to end.
constexpr std::chrono::seconds kGrace(2);

std::string SignalText(int signal) {
  const char* name = sigabbrev_np(signal);
  return "was ended by signal " + std::to_string(signal) +
         (name != nullptr ? std::string(" (") + name + ")" : "");
}

// Reads what is there and hands it to `take`, which says whether to go on. Closes the end of a pipe
// that nobody writes to any more.
template <typename Take>
void Drain(PipeEnd& pipe, const Take& take) {
  static std::array<char, size_t{64} * 1024> buffer;
  while (pipe.IsOpen()) {
    const ssize_t count = read(pipe.get(), buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0 && errno == EAGAIN) return;
    if (count <= 0) {
      pipe.Close();
      return;
    }
    if (!take(std::string_view(buffer.data(), static_cast<size_t>(count)))) return;
  }
}

}  // namespace

int32_t PosixProcesses::Processors() {
  // As many bits as the system has processors, which may be more than a plain set holds.
  for (int count = CPU_SETSIZE; count <= (1 << 20); count *= 2) {
    cpu_set_t* set = CPU_ALLOC(static_cast<size_t>(count));
    const size_t size = CPU_ALLOC_SIZE(static_cast<size_t>(count));
    const bool known = set != nullptr && sched_getaffinity(0, size, set) == 0;
    const int processors = known ? CPU_COUNT_S(size, set) : 0;
    CPU_FREE(set);
    if (known) return std::max(processors, 1);
  }
  return 1;
}

int32_t PosixProcesses::Start(const ChildOrder& order, int32_t* child) {
  if (running_.size() >= kMostChildren) return kTooManyFiles;
  // Leads to this program's file even where another version has taken its name meanwhile.
  constexpr char kThisProgram[] = "/proc/self/exe";
  std::string program = order.program.empty() ? kThisProgram : ToUtf8(order.program);
  std::vector<std::string> words = {order.program.empty() ? "logcheck" : program};
  for (const std::string& argument : order.arguments) words.push_back(ToUtf8(argument));
  if (!order.shellLine.empty()) {
    program = "/bin/sh";
    words = {"sh", "-c", order.shellLine};
  }
  for (const auto& [name, value] : order.environment) {
    setenv(name.c_str(), ToUtf8(value).c_str(), 1);
  }
  const int32_t number = last_ + 1;
  Running& running = running_[number];
  const int error = running.process.Start(program, words, order.input);
  if (error != 0) {
    running_.erase(number);
    return ErrorFromErrno(error, program);
  }
  running.seconds = order.seconds;
  running.deadline = std::chrono::steady_clock::now() + std::chrono::seconds(order.seconds);
  *child = last_ = number;
  return kNoError;
}

void PosixProcesses::ReadOutputOf(Running& child) {
  // No longer than one child's turn, so that one that never stops can't keep the others waiting.
  constexpr int64_t kATurn = int64_t{1} << 20U;
  const int64_t until = child.output.length + kATurn;
  Drain(child.process.output, [&](std::string_view bytes) {
    if (!child.reason.empty()) return true;
    const int error = spool_.Append(child.output, bytes);
    if (error != 0) {
      child.reason = "has an output that could not be kept in the folder for temporary files (" +
                     std::string(strerrordesc_np(error)) + ")";
    } else if (child.output.length > mostOutput_) {
      child.reason = "wrote more than " + std::to_string(mostOutput_) + " bytes";
    }
    if (!child.reason.empty()) child.deadline = std::chrono::steady_clock::now();
    return child.output.length < until;
  });
}

void PosixProcesses::ReadErrorsOf(Running& child) {
  int reads = 0;
  Drain(child.process.errors, [&](std::string_view bytes) {
    child.errors += bytes.substr(0, kMostChildErrors - child.errors.size());
    constexpr int kMostReads = 16;
    return ++reads < kMostReads;
  });
}

void PosixProcesses::Listen() {
  // A child may leave its output to another process and end; then nothing would wake us.
  constexpr int kMilliseconds = 50;
  constexpr int kAtOnce = 1;
  int wait = kMilliseconds;
  std::vector<pollfd> ends;
  for (auto& [number, child] : running_) {
    for (const PipeEnd* pipe : {&child.process.output, &child.process.errors}) {
      if (pipe->IsOpen()) ends.push_back({pipe->get(), POLLIN, 0});
    }
    // Both are closed when it ends, and a moment later it has ended.
    if (!child.process.output.IsOpen() && !child.process.errors.IsOpen()) wait = kAtOnce;
  }
  poll(ends.data(), ends.size(), wait);
  for (auto& [number, child] : running_) {
    ReadOutputOf(child);
    ReadErrorsOf(child);
  }
}

bool PosixProcesses::Hurry(Running& child, Instant now) {
  if (now < child.deadline) return false;
  if (child.reason.empty()) {
    child.reason = "took longer than " + std::to_string(child.seconds) + " seconds";
  }
  if (!child.asked) {
    child.asked = true;
    child.process.AskToEnd();
    child.deadline = now + kGrace;
    return false;
  }
  child.process.EndNow();
  return true;
}

bool PosixProcesses::IsOver(Running& child, ChildEnd* end) {
  int status = 0;
  const bool ended = child.process.HasEnded(&status);
  if (!ended && !Hurry(child, std::chrono::steady_clock::now())) return false;
  // What it wrote last may not have been read; nobody writes any more.
  for (int64_t before = -1; before != child.output.length;) {
    before = child.output.length;
    ReadOutputOf(child);
  }
  ReadErrorsOf(child);
  *end = {};
  end->reason = child.reason;
  end->errors = std::move(child.errors);
  if (ended && end->reason.empty() && WIFSIGNALED(status))
    end->reason = SignalText(WTERMSIG(status));
  if (ended && end->reason.empty()) end->exitCode = WEXITSTATUS(status);
  return true;
}

int32_t PosixProcesses::Wait(int32_t* child, ChildEnd* end) {
  while (!running_.empty()) {
    for (auto& [number, running] : running_) {
      if (!IsOver(running, end)) continue;
      *child = number;
      ended_[number] = std::move(running.output);
      running_.erase(number);
      return kNoError;
    }
    Listen();
  }
  return kInvalidCall;
}

int32_t PosixProcesses::ReadOutput(int32_t child, int64_t position, std::string_view* bytes) {
  *bytes = {};
  const auto ended = ended_.find(child);
  if (ended == ended_.end()) return kInvalidCall;
  return ErrorFromErrno(spool_.Read(ended->second, position, bytes), "");
}

void PosixProcesses::Release(int32_t child) {
  const auto running = running_.find(child);
  if (running != running_.end()) {
    spool_.Release(running->second.output);
    running_.erase(running);
  }
  const auto ended = ended_.find(child);
  if (ended == ended_.end()) return;
  spool_.Release(ended->second);
  ended_.erase(ended);
}

}  // namespace logchecker
