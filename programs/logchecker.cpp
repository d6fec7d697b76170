// The desktop.
#include "shell/ui/Desktop.h"

int main(int argc, char** argv) { return logchecker::RunDesktop(argc, argv); }
