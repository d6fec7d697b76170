// The desktop.
#include "platform/Endings.h"
#include "platform/StandardStreams.h"
#include "shell/ui/Desktop.h"

int main(int argc, char** argv) {
  logchecker::JoinConsole();
  logchecker::HoldStandardStreams();
  logchecker::EndWithoutTemporaryFiles();
  return logchecker::RunDesktop(argc, argv);
}
