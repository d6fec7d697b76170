// The window that shows a note, prints it and saves a copy.
#pragma once

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTextEdit>
#include <functional>

#include "common/ErrorState.h"
#include "notes/RichText.h"
#include "notes/ui/frmPrintPreview.h"
#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "tests/support/ui/HostProgram.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {

class PrintPreviewTest : public WindowTest {
 protected:
  PrintPreviewTest() {
    folder().WriteFile("note.rtf", "{\\rtf1\\ansi first {\\b bold}\\par caf\\'e9}");
    folder().WriteFile("note.txt", "plain <b>text</b>\r\nsecond");
  }
  void Open(const std::string& file) {
    preview.LoadFile(file);
    preview.show();
    QApplication::setActiveWindow(&preview);
  }
  QTextEdit* Box() { return Control<QTextEdit>(&preview, "rtfFile"); }
  QString Text() { return Box()->toPlainText(); }
  void Press(const char* button) { Control<QPushButton>(&preview, button)->click(); }
  // Prints to a PDF file and gives its text.
  QString Printed(std::optional<bool> selection) {
    const QString pdf = QString::fromStdString(ToHostPath(folder().Path()) + "/out.pdf");
    QFile::remove(pdf);
    DialogScript script([&](QDialog* dialog) {
      auto* printer = qobject_cast<QPrintDialog*>(dialog);
      ASSERT_NE(printer, nullptr);
      presetSelection = printer->printRange() == QAbstractPrintDialog::Selection;
      auto* printers = Control<QComboBox>(printer, "printers");
      printers->setCurrentIndex(printers->count() - 1);
      Control<QLineEdit>(printer, "filename")->setText(pdf);
      if (selection) {
        Control<QRadioButton>(printer, *selection ? "printSelection" : "printAll")
            ->setChecked(true);
      }
      printer->accept();
    });
    Press("cmdPrint");
    pages = OutputOfProgram("pdfinfo", {pdf}).count(QRegularExpression("Pages: +1\n"));
    fonts = OutputOfProgram("pdffonts", {pdf});
    return OutputOfProgram("pdftotext", {pdf, "-"});
  }
  void Select(int from, int to) {
    QTextCursor cursor(Box()->document());
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    Box()->setTextCursor(cursor);
  }
  // Saves under a name that is typed into the dialog.
  void SaveUnder(const QString& name) {
    DialogScript script([&](QDialog* dialog) {
      EXPECT_EQ(dialog->windowTitle(), "Select File to Save to");
      auto* box = Control<QLineEdit>(dialog, "fileNameEdit");
      EXPECT_EQ(box->text(), "*.*");
      QApplication::setActiveWindow(dialog);
      box->setFocus();
      box->setText(name);
      QTest::keyClick(box, Qt::Key_Return);
      if (dialog->isVisible()) dialog->reject();
    });
    Press("cmdSave");
  }
  QString HostName(const char* name) const {
    return QString::fromStdString(ToHostPath(Path(name)));
  }

  frmPrintPreview preview;
  bool presetSelection = false;
  QString fonts;
  qsizetype pages = 0;  // 1 where a file of one page was printed
};

}  // namespace logchecker
