// Return on the buttons of the results window.
#include <QAbstractPrintDialog>
#include <QFileDialog>

#include "tests/checking/ui/ResultsTest.h"

namespace logchecker {
namespace {

class ResultsReturnTest : public ResultsTest {};

TEST_F(ResultsReturnTest, ReturnPressesTheButtonThatHasTheFocus) {
  Check();
  const auto press = [this](const char* button) {
    Button(button)->setFocus();
    QTest::keyClick(Button(button), Qt::Key_Return);
  };
  {
    DialogScript script([this](QDialog* dialog) {
      auto* files = qobject_cast<QFileDialog*>(dialog);
      ASSERT_NE(files, nullptr);
      EXPECT_TRUE(files->testOption(QFileDialog::DontUseNativeDialog));
      EXPECT_TRUE(dialog->parentWidget() != nullptr &&
                  dialog->parentWidget()->window() == window->window());
      dialog->reject();
    });
    press("cmdSave");
  }
  DialogScript script([this](QDialog* dialog) {
    EXPECT_NE(qobject_cast<QAbstractPrintDialog*>(dialog), nullptr);
    EXPECT_TRUE(dialog->parentWidget() != nullptr &&
                dialog->parentWidget()->window() == window->window());
    dialog->reject();
  });
  press("cmdPrint");
}

}  // namespace
}  // namespace logchecker
