#include "tests/support/RunProgram.h"

#include <sys/wait.h>

#include <cstdlib>

#include "platform/Platform.h"

namespace logchecker {

ProgramResult RunProgram(const std::string& name, const std::string& arguments,
                         const TempFolder& folder) {
  const std::string command = "'" + RealPlatform().system.ProgramFolder() + "/" + name + "' " +
                              arguments + " >'" + folder.Path("stdout") + "' 2>'" +
                              folder.Path("stderr") + "'";
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder.ReadFile("stdout"),
          folder.ReadFile("stderr")};
}

}  // namespace logchecker
