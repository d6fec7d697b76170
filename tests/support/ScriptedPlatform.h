// A platform that does what the real one does, until a script makes a call fail.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "tests/support/CallScript.h"

namespace logchecker {

// In force for as long as it lives. A call that fails does nothing and leaves its outputs as they
// are; a failing read of a profile file gives the default.
class ScriptedPlatform {
 public:
  ScriptedPlatform();
  ~ScriptedPlatform();
  ScriptedPlatform(const ScriptedPlatform&) = delete;
  ScriptedPlatform& operator=(const ScriptedPlatform&) = delete;

  CallScript script;
  // What takes the place of the real answers, where it is set.
  std::optional<double> now;
  std::optional<std::string> programFolder;
  std::optional<std::vector<uint32_t>> waveOutFormats;
  std::optional<std::vector<uint32_t>> waveInFormats;

 private:
  struct Parts;

  std::unique_ptr<Parts> parts_;
  Platform& before_;
};

}  // namespace logchecker
