// From the frame's entry to the paper.
#include <QFile>

#include "platform/HostPaths.h"
#include "tests/shell/ui/MainTest.h"
#include "tests/support/ui/PrintedFile.h"

namespace logchecker {
namespace {

class PrintEntryTest : public MainTest {
 protected:
  PrintEntryTest() : pdf(QString::fromStdString(ToHostPath(folder().Path()) + "/report.pdf")) {}

  // What comes out when `print` is done; nothing when no dialog opens.
  template <typename Print>
  QString PrintedBy(Print print) {
    QFile::remove(pdf);
    DialogScript script([this](QDialog* dialog) { AnswerWithFile(dialog, pdf); });
    print();
    return TextOfFile(pdf);
  }

  QString pdf;
};

TEST_F(PrintEntryTest, TheEntryPrintsTheResultsThatAreActive) {
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  const QString text = PrintedBy([this] { Entry("mnuPrint")->trigger(); });
  EXPECT_TRUE(text.contains("Check Split Times for ")) << text.toStdString();
  EXPECT_TRUE(text.contains("08:01")) << text.toStdString();
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text,
            "Your Check Split Times Report has been printed on " + pdf.toStdString());
}

TEST_F(PrintEntryTest, ItsShortcutDoesTheSame) {
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  const QString text =
      PrintedBy([this] { QTest::keyClick(main.get(), Qt::Key_P, Qt::ControlModifier); });
  EXPECT_TRUE(text.contains("08:01")) << text.toStdString();
}

TEST_F(PrintEntryTest, WithoutRowsItPrintsTheHeadingsAlone) {
  WriteLog(3, kTomorrow, Log("08:00"));
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  ASSERT_FALSE(Control<QToolButton>(Results(), "cmdPrint")->isEnabled());
  ASSERT_TRUE(Entry("mnuPrint")->isEnabled());
  const QString text = PrintedBy([this] { Entry("mnuPrint")->trigger(); });
  EXPECT_TRUE(text.contains("Split 1 & <b>")) << text.toStdString();
  EXPECT_FALSE(text.contains("08:0")) << text.toStdString();
}

}  // namespace
}  // namespace logchecker
