// The one wrapper around event handlers that can meet a run-time error, which must never travel
// through the event loop.
#pragma once

#include <functional>
#include <utility>

#include "common/ErrorState.h"

namespace logchecker {

using StopRoutine = std::function<void(const RunTimeError&)>;

// What is done with a run-time error: it says so and ends the program. Returns the one that was;
// without any, the process aborts.
StopRoutine UseStopRoutine(StopRoutine routine);

void CallGuarded(const std::function<void()>& handler);

// Runs the handler of an event; a run-time error, and the end of memory, go to the stop routine.
template <typename Handler>
void Guarded(Handler&& handler) {
  CallGuarded(std::function<void()>(std::forward<Handler>(handler)));
}

}  // namespace logchecker
