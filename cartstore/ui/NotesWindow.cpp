#include "cartstore/ui/NotesWindow.h"

#include <QDialog>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "cartstore/CartNotes.h"
#include "common/PathText.h"
#include "common/ui/StationQString.h"

namespace logchecker {

namespace {

constexpr QSize kSize(460, 320);  // pixels

}  // namespace

void ShowPlainNotes(const std::string& file, QWidget* owner, bool modal) {
  std::string text;
  ReadNotesStart(file, text);
  auto* window = new QDialog(owner);
  window->setObjectName("frmNotes");
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowFlag(Qt::WindowStaysOnTopHint);
  window->setWindowTitle(AsTitle("Notes: " + ToQString(GetFileNamePart(file))));
  window->setModal(modal);
  auto* box = new QPlainTextEdit(ToQString(text), window);
  box->setObjectName("txtNotes");
  box->setAccessibleName("Notes");
  box->setReadOnly(true);
  box->setTabChangesFocus(true);
  auto* layout = new QVBoxLayout(window);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(box);
  window->resize(kSize);
  window->show();
}

}  // namespace logchecker
