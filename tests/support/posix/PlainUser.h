// Running a program of this build as a user without rights of his own, as stations do.
#pragma once

#include <string>

#include "tests/support/RunProgram.h"

namespace logchecker {

// `words` as they would be typed into a shell; `folder` takes what they print.
ProgramResult RunShellCommand(const std::string& words, const TempFolder& folder);

// Runs it as RunProgram does, but for a test that root runs as somebody who owns no file: file
// modes mean nothing to root. Whoever else runs the test is such a user already, and owns what it
// makes.
ProgramResult RunAsPlainUser(const std::string& name, const std::string& arguments,
                             const TempFolder& folder);

// For as long as it lives, root's test has the rights of such a user itself.
class WithoutRights {
 public:
  WithoutRights();
  ~WithoutRights();
  WithoutRights(const WithoutRights&) = delete;
  WithoutRights& operator=(const WithoutRights&) = delete;

 private:
  bool isRoot_;
};

// Lets everybody read what the folder holds by now.
void OpenToAll(const TempFolder& folder);

}  // namespace logchecker
