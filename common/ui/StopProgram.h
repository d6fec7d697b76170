// The end of a program with windows by a run-time error.
#pragma once

#include <functional>

#include "common/ErrorState.h"

namespace logchecker {

// The exit code of a program that a run-time error ended.
inline constexpr int kStopped = 3;

// Says what happened, lets `close` put files away, and leaves at once: handlers of events are still
// on the stack, and none of them may go on. An error that comes while the first is said is not said
// again.
[[noreturn]] void StopProgram(const RunTimeError& error, const std::function<void()>& close);

}  // namespace logchecker
