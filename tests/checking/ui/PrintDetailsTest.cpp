#include "tests/checking/ui/PrintDetailsTest.h"

#include <QPushButton>
#include <QRegularExpression>

#include "common/DatePicture.h"
#include "tests/support/ui/FolderWatch.h"

namespace logchecker {
namespace {

// Looks at the pointer of the results window whenever the run lets events run or says something.
class PointerWatchingUi : public RecordingUi {
 public:
  explicit PointerWatchingUi(const QWidget& window) : window_(window) {}
  void Yield() override {
    RecordingUi::Yield();
    atYield.push_back(window_.cursor().shape());
  }
  MessageAnswer Show(const Message& message) override {
    atMessage.push_back(window_.cursor().shape());
    return RecordingUi::Show(message);
  }

  std::vector<Qt::CursorShape> atYield;
  std::vector<Qt::CursorShape> atMessage;

 private:
  const QWidget& window_;
};

using Shapes = std::vector<Qt::CursorShape>;

TEST_F(PrintDetailsTest, TheWindowIsBusyForTheRunAndThenAsItWas) {
  Check();
  const PointerWatchingUi watching(*window);
  Print(2);
  EXPECT_EQ(watching.atYield, Shapes{Qt::WaitCursor}) << "once the dialog is gone";
  EXPECT_EQ(watching.atMessage, Shapes{Qt::WaitCursor}) << "the message is a part of the run";
  EXPECT_EQ(window->cursor().shape(), Qt::ArrowCursor);
  EXPECT_TRUE(watching.pointers.empty()) << "no other window is";
}

TEST_F(PrintDetailsTest, ARunThatFailsLeavesTheWindowAsItWas) {
  Check();
  pdf = QString::fromStdString(ToHostPath(folder().Path()) + "/missing/report.pdf");
  const PointerWatchingUi watching(*window);
  PrintPastTheDialogsTests(1);
  EXPECT_EQ(watching.atMessage, Shapes{Qt::WaitCursor});
  EXPECT_EQ(window->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(PrintDetailsTest, ADialogThatIsCancelledMakesNothingBusy) {
  Check();
  const PointerWatchingUi watching(*window);
  DialogScript script([&](QDialog* dialog) {
    EXPECT_EQ(window->cursor().shape(), Qt::ArrowCursor);
    dialog->reject();
  });
  window->PrintDetails();
  EXPECT_TRUE(watching.atYield.empty());
  EXPECT_EQ(window->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(PrintDetailsTest, TheReportHasTitleHeadingsAndRows) {
  Check();
  Print();
  const QString text = Text();
  EXPECT_TRUE(text.contains("Velmar KLT LC - Check Split Times for " +
                            QString::fromStdString(*FormatDate(kDay, "ddddd"))))
      << text.toStdString();
  EXPECT_TRUE(text.contains("North & <b>"));
  EXPECT_TRUE(text.contains("Not Found"));
  EXPECT_TRUE(text.contains("08:01"));
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text,
            "Your Check Split Times Report has been printed on " + pdf.toStdString());
  EXPECT_EQ(ui.messages[0].icon, MessageIcon::kInformation);
  EXPECT_EQ(ui.yields, 2) << "one when the window loads, one before the printing";
}

TEST_F(PrintDetailsTest, WithNoRowSelectedAllIsPresetAndTheWholeListPrints) {
  Check();
  List()->clearSelection();
  Print();
  EXPECT_FALSE(presetSelection);
  EXPECT_TRUE(Text().contains("07:00"));
}

TEST_F(PrintDetailsTest, WithOneRowSelectedAllIsPresetAndTheWholeListPrints) {
  Check();
  ClickRow(1);
  Print();
  EXPECT_FALSE(presetSelection);
  EXPECT_TRUE(Text().contains("07:00"));
}

TEST_F(PrintDetailsTest, WithTwoRowsSelectedTheSelectionIsPresetAndPrints) {
  Check();
  ClickRow(0);
  ClickRow(2, Qt::ControlModifier);
  Print();
  EXPECT_TRUE(presetSelection);
  EXPECT_TRUE(Text().contains("07:00"));
  EXPECT_FALSE(Text().contains("08:00"));
}

TEST_F(PrintDetailsTest, TheUsersChoiceDecidesInTheEnd) {
  Check();
  ClickRow(0);
  ClickRow(2, Qt::ControlModifier);
  Print(1, false);
  EXPECT_TRUE(Text().contains("08:00"));
}

TEST_F(PrintDetailsTest, SeveralCopiesEndInOneMessage) {
  Check();
  Print(3);
  EXPECT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(Text().count("07:00"), 1) << "each copy is a job of its own, of one copy";
}

// Each job replaces the file of the one before.
TEST_F(PrintDetailsTest, ThreeCopiesAreThreeJobs) {
  Check();
  FolderWatch watch(QString::fromStdString(ToHostPath(folder().Path())));
  Print(3);
  EXPECT_EQ(watch.Arrivals("report.pdf"), 3);
}

TEST_F(PrintDetailsTest, PaperAndOrientationAreThoseThatWerePicked) {
  Check();
  DialogScript script([&](QDialog* dialog) {
    auto* printers = Control<QComboBox>(dialog, "printers");
    printers->setCurrentIndex(printers->count() - 1);
    Control<QPushButton>(dialog, "properties")->click();
    AnswerDialog(dialog, 1, std::nullopt);
  });
  script.Then([](QDialog* properties) {
    auto* sizes = Control<QComboBox>(properties, "pageSizeCombo");
    sizes->setCurrentIndex(sizes->findText("A4", Qt::MatchStartsWith));
    Control<QRadioButton>(properties, "landscape")->click();
    properties->accept();
  });
  window->PrintDetails();
  EXPECT_TRUE(
      OutputOfProgram("pdfinfo", {pdf}).contains(QRegularExpression("Page size: +842 x 595")))
      << OutputOfProgram("pdfinfo", {pdf}).toStdString();
}

TEST_F(PrintDetailsTest, OfARangeOfPagesThatIsNotThereTheReasonIsSaid) {
  Check();
  DialogScript script([&](QDialog* dialog) {
    Control<QRadioButton>(dialog, "printRange")->setChecked(true);
    Control<QSpinBox>(dialog, "to")->setValue(9);
    Control<QSpinBox>(dialog, "from")->setValue(8);
    AnswerDialog(dialog, 1, std::nullopt);
  });
  window->PrintDetails();
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_NE(ui.messages[0].text.find("There are no such pages"), std::string::npos);
  EXPECT_FALSE(QFile::exists(pdf));
}

TEST_F(PrintDetailsTest, ACancelledDialogEndsInSilence) {
  Check();
  DialogScript script([](QDialog* dialog) { dialog->reject(); });
  window->PrintDetails();
  EXPECT_TRUE(ui.messages.empty());
}

TEST_F(PrintDetailsTest, AFileThatCantBeWrittenIsSaidOnceWithItsReason) {
  Check();
  pdf = QString::fromStdString(ToHostPath(folder().Path()) + "/missing/report.pdf");
  PrintPastTheDialogsTests(3);
  ASSERT_EQ(ui.messages.size(), 1U);
  EXPECT_EQ(ui.messages[0].text.find("There was a problem printing your Check Split Times Report "
                                     "on " +
                                     pdf.toStdString()),
            0U);
  EXPECT_GT(ui.messages[0].text.size(),
            ("There was a problem printing your Check Split Times Report on " + pdf.toStdString())
                .size());
}

TEST_F(PrintDetailsTest, WithoutRowsTheReportHasItsHeadingsAlone) {
  SecondSplitAsTheFirst();
  Check();
  Print();
  EXPECT_TRUE(Text().contains("Time"));
  EXPECT_FALSE(Text().contains("07:00"));
}

TEST_F(PrintDetailsTest, TheButtonPrints) {
  Check();
  DialogScript script([](QDialog* dialog) { dialog->reject(); });
  Button("cmdPrint")->click();
}

}  // namespace
}  // namespace logchecker
