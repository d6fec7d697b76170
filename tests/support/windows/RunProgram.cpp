#include "tests/support/RunProgram.h"

#include <cstdlib>

#include "platform/Platform.h"

namespace logchecker {

ProgramResult RunProgram(const std::string& name, const std::string& arguments,
                         const TempFolder& folder) {
  // The command processor takes one pair of quotes off the whole line.
  const std::string command = "\"\"" + RealPlatform().system.ProgramFolder() + "\\" + name +
                              ".exe\" " + arguments + " >\"" + folder.Path("stdout") + "\" 2>\"" +
                              folder.Path("stderr") + "\"\"";
  const int code = std::system(command.c_str());
  return {code, folder.ReadFile("stdout"), folder.ReadFile("stderr")};
}

}  // namespace logchecker
