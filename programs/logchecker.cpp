// The desktop.
#include "platform/Endings.h"
#include "shell/ui/Desktop.h"

int main(int argc, char** argv) {
  logchecker::EndWithoutTemporaryFiles();
  return logchecker::RunDesktop(argc, argv);
}
