// The desktop.
#include "platform/StandardStreams.h"
#include "shell/ui/Desktop.h"

int main(int argc, char** argv) {
  logchecker::HoldStandardStreams();
  return logchecker::RunDesktop(argc, argv);
}
