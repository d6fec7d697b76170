#include "cartbrowser/ui/NotesWindow.h"

#include "notes/ui/frmPrintPreview.h"

namespace logchecker {

void ShowNotesPreview(const std::string& file, QWidget* owner, bool modal) {
  auto* preview = new frmPrintPreview(owner);
  preview->setAttribute(Qt::WA_DeleteOnClose);
  preview->setModal(modal);
  preview->LoadFile(file);
  preview->show();
}

}  // namespace logchecker
