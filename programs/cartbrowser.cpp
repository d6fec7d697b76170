// Browses the cart store, and prints the number of the cart that was chosen.
#include "cartbrowser/ui/CartBrowserProgram.h"
#include "cartbrowser/ui/NotesWindow.h"
#include "platform/Endings.h"
#include "platform/StandardStreams.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/LoadLogs.h"

int main(int argc, char** argv) {
  logchecker::JoinConsole();
  logchecker::HoldStandardStreams();
  logchecker::EndWithoutTemporaryFiles();
  return logchecker::RunCartBrowser(
      argc, argv,
      {logchecker::LoadGeneralSettings, logchecker::CloseAllFiles, logchecker::ShowNotesPreview});
}
