// How the controls of the search's window look and answer.
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QTabWidget>
#include <QTreeView>

#include "common/ui/CompactFont.h"
#include "common/ui/Twips.h"
#include "tests/cartbrowser/ui/FindCartForm.h"
#include "tests/support/ui/PaintCounter.h"

namespace logchecker {
namespace {

class FindCartControlsTest : public FindCartFormTest {
 protected:
  // What is behind the text of a box as it stands now, whichever role its style takes.
  std::vector<QColor> Backgrounds(const char* name) {
    const QPalette colours = The<QWidget>(name)->palette();
    return {colours.color(QPalette::Base), colours.color(QPalette::Button)};
  }
  static std::vector<QColor> Desktop(QPalette::ColorRole role) {
    const QColor colour = QApplication::palette().color(QPalette::Active, role);
    return {colour, colour};
  }
  // The window's colour behind boxes that are enabled, a button's behind those that are not.
  void ExpectBackgrounds(const std::vector<const char*>& enabled,
                         const std::vector<const char*>& disabled) {
    for (const char* name : enabled) {
      EXPECT_TRUE(The<QWidget>(name)->isEnabled()) << name;
      EXPECT_EQ(Backgrounds(name), Desktop(QPalette::Base)) << name;
    }
    for (const char* name : disabled) {
      EXPECT_FALSE(The<QWidget>(name)->isEnabled()) << name;
      EXPECT_EQ(Backgrounds(name), Desktop(QPalette::Button)) << name;
    }
  }
  void ClickHeader(FoundColumn column) {
    QHeaderView* header = List()->header();
    const int x = header->sectionViewportPosition(column) + header->sectionSize(column) / 2;
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(x, header->height() / 2));
  }
};

TEST_F(FindCartControlsTest, TheSearchTextIsSelectedWheneverItGetsTheFocus) {
  Text()->setEditText("some words");
  const auto comesIn = [this](const std::function<void()>& bring) {
    The<QWidget>("chkNotes")->setFocus();
    Text()->lineEdit()->deselect();
    bring();
    QApplication::processEvents();
    EXPECT_TRUE(Text()->hasFocus());
    EXPECT_EQ(Text()->lineEdit()->selectedText(), "some words");
    EXPECT_EQ(Text()->lineEdit()->selectionStart(), 0);
  };
  comesIn([this] { Text()->setFocus(); });
  comesIn([this] { QTest::mouseClick(Text()->lineEdit(), Qt::LeftButton); });
}

TEST_F(FindCartControlsTest, TheCollapsedWindowHasOneHeightAndTheOtherCanBeMadeHigher) {
  EXPECT_EQ(window->maximumHeight(), window->height());
  EXPECT_EQ(window->minimumHeight(), window->height());
  window->resize(500, 600);
  EXPECT_EQ(window->frameGeometry().height(), 183);
  FindText("cart");
  EXPECT_EQ(window->minimumHeight(), window->height());
  window->resize(500, 600);
  EXPECT_EQ(window->height(), 600);
  window->close();
  Open();
  EXPECT_EQ(window->maximumHeight(), window->height());
  EXPECT_EQ(window->frameGeometry().height(), 183);
}

TEST_F(FindCartControlsTest, NotesAreSearchedWhenTheirKeyWasPressedJustBefore) {
  folder().WriteFile("part1/VEL00050.TXT", "needle");
  Text()->setEditText("needle");
  Key(Qt::Key_N, Qt::AltModifier);
  Key(Qt::Key_Return);
  EXPECT_EQ(Numbers(), QStringList{"50"});
}

TEST_F(FindCartControlsTest, ReturnPressesTheButtonThatHasTheFocus) {
  walk.atCart = [&](int cart) {
    if (cart != 60) return;
    EXPECT_TRUE(Stop()->hasFocus());
    Key(Qt::Key_Return);
  };
  FindText("cart");
  EXPECT_EQ(walk.carts, 60);
}

TEST_F(FindCartControlsTest, AClickOfTheMouseOnAHeadingSorts) {
  FindText("cart");
  ClickHeader(kFoundLine1);
  EXPECT_EQ(Numbers(), (QStringList{"5", "50", "299", "200"}));
  ClickHeader(kFoundLine1);
  EXPECT_EQ(Numbers(), (QStringList{"200", "299", "50", "5"}));
  ClickHeader(kFoundNumber);
  EXPECT_EQ(Numbers(), (QStringList{"299", "200", "50", "5"})) << "by the hidden column";
}

TEST_F(FindCartControlsTest, BoxesHaveTheWindowsColourWhileTheyAreEnabledAndAButtonsOtherwise) {
  ExpectBackgrounds({"cmbSearchText", "cmbSearchDirection"}, {"mskLength", "comboLength"});
  The<QCheckBox>("chkTimeSearch")->click();
  ExpectBackgrounds({"cmbSearchText", "cmbSearchDirection", "mskLength", "comboLength"}, {});
  walk.atCart = [&](int cart) {
    if (cart == 1) {
      ExpectBackgrounds({}, {"cmbSearchText", "cmbSearchDirection", "mskLength", "comboLength"});
    }
  };
  FindText("cart");
  EXPECT_EQ(walk.carts, 300);
  ExpectBackgrounds({"cmbSearchText", "cmbSearchDirection", "mskLength", "comboLength"}, {});
}

TEST_F(FindCartControlsTest, ALengthOfNothingIsAnEmptyCell) {
  PutCart(7, RecordOfLength(0, "SILENT CART"));
  FindText("silent");
  ASSERT_EQ(Numbers(), QStringList{"7"});
  EXPECT_EQ(Cell(0, kFoundLength), "");
}

TEST_F(FindCartControlsTest, WithoutAStartCartProgressBeginsAtTheFirst) {
  for (const int32_t start : {0, -7}) {
    window->close();
    Open(start);
    walk.carts = 0;
    QString first;
    walk.atCart = [&](int cart) {
      if (cart == 1) first = The<QLabel>("lblSearchCartNumber")->text();
    };
    FindText("cart");
    EXPECT_EQ(first, "1") << start;
    EXPECT_EQ(Numbers(), (QStringList{"5", "50", "200", "299"})) << start;
  }
}

// A font that the controls need more room for than the window usually has.
class LargeFontTest : public FindCartControlsTest {
 protected:
  void SetUp() override {
    QFont large = before_;
    large.setPixelSize(30);
    QApplication::setFont(large);
    FindCartControlsTest::SetUp();
  }
  void TearDown() override {
    FindCartControlsTest::TearDown();
    QApplication::setFont(before_);
  }

 private:
  QFont before_ = QApplication::font();
};

TEST_F(LargeFontTest, ALargeFontGetsItsRoomInBothHeights) {
  const int needed = window->layout()->minimumSize().height();
  const int frame = window->frameGeometry().height() - window->height();
  ASSERT_GT(frame, 0);
  ASSERT_GT(needed, 183);
  EXPECT_EQ(window->height(), needed);
  FindText("cart");
  EXPECT_EQ(window->frameGeometry().height(), 342 + needed + frame - 183);
}

TEST_F(FindCartControlsTest, TheListFollowsALargerTextWhileItIsOpen) {
  FindText("cart");
  auto* list = Control<QTreeView>(window.get(), "lviewItems");
  const QFont before = QApplication::font();
  const int usual = list->fontInfo().pixelSize();
  QFont large = before;
  large.setPointSizeF(2 * before.pointSizeF());
  for (const bool twice : {true, false}) {
    QApplication::setFont(twice ? large : before);
    QCoreApplication::processEvents();
    EXPECT_EQ(list->fontInfo().pixelSize() >= 1.5 * usual, twice);
    EXPECT_EQ(list->visualRect(list->model()->index(0, 1)).height(), CompactRowHeight());
    EXPECT_GT(list->columnWidth(1), list->fontMetrics().horizontalAdvance("00000"));
    EXPECT_GE(window->height(), window->layout()->minimumSize().height());
  }
  EXPECT_EQ(list->columnWidth(1), ToPixels(700));
}

TEST_F(FindCartControlsTest, TheSearchTextTakesOnlyCharactersOfTheCodePage) {
  auto* line = Text()->lineEdit();
  line->clear();
  QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, QString::fromUtf8("\xE2\x98\x83"), {});
  QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, QString::fromUtf8("\xC3\xA9"), {});
  EXPECT_EQ(line->text(), QString::fromUtf8("\xC3\xA9"));
}

TEST_F(FindCartControlsTest, TheProgressIsPaintedAtOnce) {
  PaintCounter paints(The<QLabel>("lblSearchCartNumber"));
  walk.atCart = [&](int cart) {
    // Before any event runs.
    if (cart % 100 == 0) {
      EXPECT_GT(paints.count, 0) << cart;
    }
    paints.count = 0;
  };
  FindText("cart");
  EXPECT_EQ(walk.carts, 300);
}

TEST_F(FindCartControlsTest, ARowThatIsDeselectedIsNotTaken) {
  FindText("cart");
  ASSERT_EQ(SelectedRow(), 0);
  QTest::mouseClick(List()->viewport(), Qt::LeftButton, Qt::ControlModifier, Middle(0));
  ASSERT_EQ(SelectedRow(), -1);
  EXPECT_EQ(window->results().SelectedRow(), std::nullopt);
  Key(Qt::Key_Return);
  EXPECT_TRUE(browser.jumps.empty());
  EXPECT_TRUE(window->isVisible());
}

TEST_F(FindCartControlsTest, OnlyAnEmptyCellIsReadOutAsEmpty) {
  FindText("cart");
  const auto said = [this](int row, FoundColumn column, int role) {
    return List()->model()->index(row, column).data(role).toString();
  };
  EXPECT_EQ(said(1, kFoundLine1, Qt::AccessibleTextRole), "");
  EXPECT_EQ(said(1, kFoundLine2, Qt::AccessibleTextRole), "Line 2 is empty");
  EXPECT_EQ(said(1, kFoundLine2, Qt::ToolTipRole), "");
}

}  // namespace
}  // namespace logchecker
