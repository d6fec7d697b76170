#include "common/ui/Guard.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace logchecker {

namespace {

StopRoutine& TheStopRoutine() {
  static StopRoutine routine = [](const RunTimeError&) { std::abort(); };
  return routine;
}

}  // namespace

StopRoutine UseStopRoutine(StopRoutine routine) {
  return std::exchange(TheStopRoutine(), std::move(routine));
}

void CallGuarded(const std::function<void()>& handler) {
  try {
    handler();
  } catch (const RunTimeError& error) {
    TheStopRoutine()(error);
  } catch (const std::bad_alloc&) {
    TheStopRoutine()(RunTimeError(kOutOfMemory, ""));
  }
}

}  // namespace logchecker
