// Return in the viewer.
#include <QAbstractPrintDialog>
#include <QFileDialog>
#include <QPushButton>

#include "notes/ui/frmPrintPreview.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class PreviewReturnTest : public WindowTest {
 protected:
  PreviewReturnTest() {
    preview.show();
    QApplication::setActiveWindow(&preview);
  }
  void Return(const char* focus) {
    auto* control = Control<QWidget>(&preview, focus);
    control->setFocus();
    QTest::keyClick(control, Qt::Key_Return);
  }

  frmPrintPreview preview;
};

TEST_F(PreviewReturnTest, ReturnPressesTheButtonThatHasTheFocus) {
  {
    DialogScript script([this](QDialog* dialog) {
      auto* files = qobject_cast<QFileDialog*>(dialog);
      ASSERT_NE(files, nullptr);
      EXPECT_EQ(files->parentWidget(), &preview);
      EXPECT_TRUE(files->testOption(QFileDialog::DontUseNativeDialog));
      dialog->reject();
    });
    Return("cmdSave");
  }
  {
    DialogScript script([this](QDialog* dialog) {
      EXPECT_NE(qobject_cast<QAbstractPrintDialog*>(dialog), nullptr);
      EXPECT_EQ(dialog->parentWidget(), &preview);
      dialog->reject();
    });
    Return("cmdPrint");
  }
  EXPECT_TRUE(preview.isVisible());
  Return("rtfFile");
  EXPECT_FALSE(preview.isVisible()) << "elsewhere it is OK";
}

}  // namespace
}  // namespace logchecker
