// Run by a script that has a print scheduler at hand; without one there is nothing to test.
#include <QComboBox>
#include <QPrintDialog>
#include <QSpinBox>
#include <cstdlib>

#include "tests/checking/ui/ResultsTest.h"

namespace logchecker {
namespace {

using QueueTest = ResultsTest;

TEST_F(QueueTest, ThreeCopiesGoToTheQueueOrTheRefusalIsSaid) {
  const char* queue = std::getenv("LOGCHECKER_TEST_QUEUE");
  const char* expected = std::getenv("LOGCHECKER_TEST_EXPECT");
  if (queue == nullptr || expected == nullptr) GTEST_SKIP() << "no print scheduler at hand";
  Check();
  DialogScript script([&](QDialog* dialog) {
    auto* printers = Control<QComboBox>(dialog, "printers");
    const int index = printers->findText(queue);
    ASSERT_GE(index, 0) << "the dialog does not offer the queue";
    printers->setCurrentIndex(index);
    Control<QSpinBox>(dialog, "copies")->setValue(3);
    qobject_cast<QPrintDialog*>(dialog)->accept();
  });
  window->PrintDetails();
  ASSERT_EQ(ui.messages.size(), 1U);
  const std::string name = queue;
  const std::string wanted =
      std::string(expected) == "printed"
          ? "Your Check Split Times Report has been printed on " + name
          : "There was a problem printing your Check Split Times Report on " + name + expected;
  EXPECT_EQ(ui.messages[0].text, wanted);
}

}  // namespace
}  // namespace logchecker
