// Runs a program of this build as a process of its own.
#pragma once

#include <string>

#include "tests/support/TempFolder.h"

namespace logchecker {

struct ProgramResult {
  int exitCode = -1;
  std::string output;  // bytes of standard output
  std::string errors;
};

// `arguments` as they would be typed; `folder` takes what the program prints.
ProgramResult RunProgram(const std::string& name, const std::string& arguments,
                         const TempFolder& folder);

}  // namespace logchecker
