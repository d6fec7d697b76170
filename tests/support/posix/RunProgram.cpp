#include "tests/support/RunProgram.h"

#include <sys/wait.h>

#include <cstdlib>

#include "platform/Platform.h"
#include "tests/support/posix/PlainUser.h"

namespace logchecker {

ProgramResult RunShellCommand(const std::string& words, const TempFolder& folder) {
  const std::string command =
      words + " >'" + folder.Path("stdout") + "' 2>'" + folder.Path("stderr") + "'";
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder.ReadFile("stdout"),
          folder.ReadFile("stderr")};
}

ProgramResult RunProgram(const std::string& name, const std::string& arguments,
                         const TempFolder& folder) {
  return RunShellCommand(
      "'" + RealPlatform().system.ProgramFolder() + "/" + name + "' " + arguments, folder);
}

}  // namespace logchecker
