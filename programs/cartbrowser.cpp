// Browses the cart store, and prints the number of the cart that was chosen.
#include "cartstore/ui/CartBrowserProgram.h"
#include "cartstore/ui/NotesWindow.h"
#include "shell/LoadGeneralSettings.h"
#include "shell/LoadLogs.h"

int main(int argc, char** argv) {
  return logchecker::RunCartBrowser(
      argc, argv,
      {logchecker::LoadGeneralSettings, logchecker::CloseAllFiles, logchecker::ShowNotesPreview});
}
