#include <QAbstractButton>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QProgressDialog>
#include <new>

#include "common/Messages.h"
#include "common/ui/Guard.h"
#include "common/ui/Icons.h"
#include "common/ui/ListViewModel.h"
#include "common/ui/QtUserInterface.h"
#include "common/ui/StationQString.h"
#include "common/ui/SystemColours.h"
#include "common/ui/TextBoxes.h"
#include "common/ui/Twips.h"
#include "platform/HostPaths.h"
#include "platform/Platform.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

using SharedPartsTest = WindowTest;

TEST_F(SharedPartsTest, TwipsBecomeTheNearestPixel) {
  EXPECT_EQ(ToPixels(500), 33);
  EXPECT_EQ(ToPixels(8), 1);
  EXPECT_EQ(ToPixels(7), 0);
  EXPECT_EQ(ToPixels(-30), -2);
  EXPECT_EQ(ToTwips(25), 375);
}

TEST_F(SharedPartsTest, TextFromOutsideStaysPlain) {
  EXPECT_EQ(AsMenuText("A & B"), "A && B");
  EXPECT_EQ(AsTitle("x[*]"), "x[*][*]");
  EXPECT_FALSE(AsToolTip("<b>loud</b>").contains("<b>"));
  EXPECT_EQ(ToQString("caf\xE9"), QString::fromUtf8("caf\xC3\xA9"));
  std::string text;
  EXPECT_TRUE(FromQString(QString::fromUtf8("\xE2\x82\xAC"), &text));
  EXPECT_EQ(text, "\x80");
  EXPECT_FALSE(FromQString(QString::fromUtf8("\xE2\x98\x83"), &text));
}

TEST_F(SharedPartsTest, RunTimeErrorsAndTheEndOfMemoryGoToTheStopRoutine) {
  Guarded([] { throw std::bad_alloc(); });
  EXPECT_EQ(StoppedBy(), kOutOfMemory);
}

TEST_F(SharedPartsTest, ColoursAreRedFirstOrTheDesktopsOwn) {
  QPalette palette;
  palette.setColor(QPalette::Highlight, QColor(1, 2, 3));
  EXPECT_EQ(ToQColor(0x0000FF, palette), QColor(255, 0, 0));
  EXPECT_EQ(ToQColor(0x800000, palette), QColor(0, 0, 128));
  EXPECT_EQ(ToQColor(kHighlight, palette), QColor(1, 2, 3));
  EXPECT_EQ(ToQColor(static_cast<int32_t>(0x800000FF), palette),
            palette.color(QPalette::WindowText));
}

TEST_F(SharedPartsTest, EachColourOfTheDesktopIsOneOfThePalette) {
  const QPalette::ColorRole roles[] = {QPalette::Mid,
                                       QPalette::Dark,
                                       QPalette::Highlight,
                                       QPalette::Mid,
                                       QPalette::Window,
                                       QPalette::Base,
                                       QPalette::WindowText,
                                       QPalette::WindowText,
                                       QPalette::Text,
                                       QPalette::HighlightedText,
                                       QPalette::Mid,
                                       QPalette::Mid,
                                       QPalette::Dark,
                                       QPalette::Highlight,
                                       QPalette::HighlightedText,
                                       QPalette::Button,
                                       QPalette::Dark,
                                       QPalette::PlaceholderText,
                                       QPalette::ButtonText,
                                       QPalette::WindowText,
                                       QPalette::Light,
                                       QPalette::Shadow,
                                       QPalette::Midlight,
                                       QPalette::ToolTipText,
                                       QPalette::ToolTipBase,
                                       QPalette::AlternateBase,
                                       QPalette::Link,
                                       QPalette::Highlight,
                                       QPalette::Mid,
                                       QPalette::Highlight,
                                       QPalette::Window};
  // No two colours of it are the same.
  QPalette palette;
  for (int role = 0; role < QPalette::NColorRoles; ++role) {
    palette.setColor(static_cast<QPalette::ColorRole>(role), QColor(role, 2 * role, 100));
  }
  for (uint32_t number = 0; number < std::size(roles); ++number) {
    EXPECT_EQ(ToQColor(static_cast<int32_t>(0x80000000U + number), palette),
              palette.color(roles[number]))
        << number;
  }
  EXPECT_EQ(ToQColor(static_cast<int32_t>(0x8000001FU), palette),
            palette.color(QPalette::WindowText))
      << "31 is none";
}

TEST_F(SharedPartsTest, EveryIconIsDrawnAtEveryScale) {
  for (const char* name : {"program", "load-day", "check-day", "save", "print", "no-problems"}) {
    for (const double scale : {1.0, 1.5, 2.0}) {
      const QPixmap picture = IconNamed(name).pixmap(QSize(16, 16), scale);
      EXPECT_EQ(picture.width(), qRound(16 * scale)) << name;
      const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
      bool drawn = false;
      for (int x = 0; x < image.width(); ++x) drawn = drawn || qAlpha(image.pixel(x, x)) > 0;
      EXPECT_TRUE(drawn) << name;
    }
  }
}

TEST_F(SharedPartsTest, NoIconIsStretchedAtTheScalesOfAScreen) {
  const struct {
    const char* name;
    int size;
  } rows[] = {{"save", 16},     {"save", 17},        {"print", 17},
              {"load-day", 32}, {"check-day", 32},   {"cart", 32},
              {"row-up", 16},   {"no-problems", 50}, {"program", 96}};
  for (const auto& row : rows) {
    for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
      const QSize size = QSize(row.size, row.size) * scale;
      const QPixmap shown = IconNamed(row.name).pixmap(QSize(row.size, row.size), scale);
      const QPixmap drawn(QString(":/icons/%1/%2.png").arg(row.name).arg(size.width()));
      ASSERT_EQ(drawn.size(), size) << row.name << " " << scale;
      EXPECT_TRUE(shown.toImage() == drawn.toImage()) << row.name << " " << scale;
      EXPECT_EQ(shown.devicePixelRatio(), scale);
    }
  }
}

TEST_F(SharedPartsTest, ADisabledIconIsFaint) {
  const QImage plain = IconNamed("program").pixmap(QSize(32, 32)).toImage();
  const QImage faint = IconNamed("program").pixmap(QSize(32, 32), QIcon::Disabled).toImage();
  ASSERT_EQ(qAlpha(plain.pixel(16, 4)), 255);
  EXPECT_NEAR(qAlpha(faint.pixel(16, 4)), 0.35 * 255, 2);
}

TEST_F(SharedPartsTest, AnIconOfAnUnknownNameDrawsNothing) {
  EXPECT_TRUE(IconNamed("no such picture").pixmap(QSize(16, 16)).isNull());
}

TEST_F(SharedPartsTest, AnIconLeavesThePainterAsItWas) {
  QImage image(16, 16, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  IconNamed("save").paint(&painter, image.rect(), Qt::AlignCenter, QIcon::Disabled);
  EXPECT_EQ(painter.opacity(), 1.0);
  EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST_F(SharedPartsTest, AMessageBoxShowsPlainTextAndGivesTheAnswer) {
  QtUserInterface desktop;
  desktop.SetMousePointer(MousePointer::kHourglass);
  const struct {
    QMessageBox::StandardButton button;
    MessageAnswer answer;
  } rows[] = {{QMessageBox::Yes, MessageAnswer::kYes},
              {QMessageBox::No, MessageAnswer::kNo},
              {QMessageBox::Cancel, MessageAnswer::kCancel}};
  for (const auto& row : rows) {
    DialogScript script;
    script.Answer(row.button);
    EXPECT_EQ(Ui().Show({"<b>sure?</b>", MessageIcon::kQuestion, MessageButtons::kYesNoCancel,
                         "Title[*]"}),
              row.answer);
    EXPECT_EQ(script.Texts(), QStringList("<b>sure?</b>"));
  }
  EXPECT_EQ(desktop.CurrentMousePointer(), MousePointer::kHourglass);
}

TEST_F(SharedPartsTest, TheProblemMessageIsARealBox) {
  QtUserInterface desktop;
  DialogScript script([](QDialog* dialog) {
    auto* box = qobject_cast<QMessageBox*>(dialog);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->icon(), QMessageBox::Warning);
    EXPECT_EQ(box->text(), "There was a problem opening it");
    EXPECT_EQ(box->windowTitle(), "Velmar KLT Log Checker");
    box->accept();
  });
  ShowErrorMessage("opening it", 0, false);
}

TEST_F(SharedPartsTest, TheHourglassIsTheWholeProgramsPointer) {
  QtUserInterface desktop;
  desktop.SetMousePointer(MousePointer::kHourglass);
  desktop.SetMousePointer(MousePointer::kHourglass);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  desktop.SetMousePointer(MousePointer::kDefault);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(SharedPartsTest, ProgressGoesToTheInnermostWatch) {
  QtUserInterface desktop;
  int outer = 0;
  int inner = 0;
  const ProgressWatch first([&](int32_t value, int32_t) { outer = value; });
  {
    const ProgressWatch second([&](int32_t value, int32_t) { inner = value; });
    Ui().ShowProgress(5, 10);
  }
  Ui().ShowProgress(7, 10);
  EXPECT_EQ(inner, 5);
  EXPECT_EQ(outer, 7);
}

TEST_F(SharedPartsTest, ACopyThatTakesItsTimeIsShownUntilItIsDone) {
  QtUserInterface desktop;
  const auto shown = [] {
    QList<QProgressDialog*> dialogs;
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* dialog = qobject_cast<QProgressDialog*>(window)) dialogs.push_back(dialog);
    }
    return dialogs;
  };
  Ui().ShowFileProgress("Copying[*]", 1, 4);
  ASSERT_EQ(shown().size(), 1);
  const QProgressDialog* dialog = shown().front();
  EXPECT_EQ(dialog->windowTitle(), "Copying[*][*]");
  EXPECT_EQ(dialog->minimumDuration(), 500);
  EXPECT_EQ(dialog->windowModality(), Qt::ApplicationModal);
  EXPECT_TRUE(dialog->findChildren<QAbstractButton*>().isEmpty());
  EXPECT_EQ(dialog->maximum(), 1000);
  EXPECT_EQ(dialog->value(), 250);
  Ui().ShowFileProgress("Copying[*]", 3, 4);
  ASSERT_EQ(shown(), QList<QProgressDialog*>{const_cast<QProgressDialog*>(dialog)});
  EXPECT_EQ(dialog->value(), 750);
  Ui().ShowFileProgress("Copying[*]", 4, 4);
  EXPECT_TRUE(shown().isEmpty());
}

TEST_F(SharedPartsTest, AListsHeadingsAreThoseOfItsColumns) {
  ListView list;
  list.ColumnHeaders = {{"A <b>", 800, ColumnAlignment::kLeft}, {"B", 0, ColumnAlignment::kRight}};
  const ListViewModel model(list);
  EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), "A <b>");
  EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).toString(), AsToolTip("A <b>"));
  EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>(),
            Qt::AlignRight | Qt::AlignVCenter);
  EXPECT_FALSE(model.headerData(0, Qt::Horizontal, Qt::DecorationRole).isValid());
  EXPECT_FALSE(model.headerData(0, Qt::Vertical).isValid()) << "rows have none";
  EXPECT_FALSE(model.headerData(2, Qt::Horizontal).isValid());
}

TEST_F(SharedPartsTest, AListShowsItsRowsWithMissingSubItemsEmpty) {
  ListView list;
  list.ColumnHeaders = {{"A", 800, ColumnAlignment::kLeft},
                        {"B", 0, ColumnAlignment::kRight},
                        {"C", 0, ColumnAlignment::kCentre}};
  list.ListItems.push_back({"k", "one", {{"two", true}}, false, false});
  ListViewModel model(list);
  EXPECT_EQ(model.index(0, 0).data().toString(), "one");
  EXPECT_EQ(model.index(0, 1).data().toString(), "two");
  EXPECT_EQ(model.index(0, 2).data().toString(), "");
  EXPECT_TRUE(model.index(0, 1).data(Qt::FontRole).value<QFont>().bold());
  EXPECT_FALSE(model.index(0, 0).data(Qt::FontRole).isValid());
  list.ListItems.push_back({"l", "three", {}, false, false});
  EXPECT_EQ(model.rowCount(), 1);
  model.TakeAddedRows();
  EXPECT_EQ(model.rowCount(), 2);
  list.ListItems.clear();
  EXPECT_FALSE(model.index(1, 0).data().isValid()) << "a row that is gone";
}

TEST_F(SharedPartsTest, ABoxKeepsItsSelectionRule) {
  QLineEdit box("some text");
  SelectAllText(box);
  EXPECT_EQ(box.selectedText(), "some text");
}

}  // namespace
}  // namespace logchecker
