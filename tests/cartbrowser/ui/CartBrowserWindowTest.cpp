// The browser's window: rows, scrolling, jumping, keys, the mouse, and how it comes and goes.
#include <QCheckBox>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>

#include "cartbrowser/ui/CartRowsPanel.h"
#include "cartbrowser/ui/frmFindCart.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "common/ui/SystemColours.h"
#include "tests/cartbrowser/ui/BrowserWindow.h"
#include "tests/support/ui/Dragging.h"

namespace logchecker {
namespace {

class CartBrowserFormTest : public BrowserWindowTest {
 protected:
  frmFindCart* Search() { return window->findChild<frmFindCart*>(); }
  // Lays the rows out for a frame of a height, in pixels, that the window's own never has.
  void GiveRows(int height) {
    const auto* frame = Control<CartRowsPanel>(window.get(), "pnlCartLabels");
    window->LayOutRows(frame->width() * 15, height * 15, frame->ButtonWidth());
  }
  QImage Picture(QWidget* widget) { return widget->grab().toImage(); }
};

TEST_F(CartBrowserFormTest, HasItsCaptionsAndControls) {
  EXPECT_EQ(window->windowTitle(), "Cart Browser");
  EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(Control<QLabel>(window.get(), "lblJumpToCart")->text(), "Jump to &Cart:");
  EXPECT_EQ(Jump()->text(), "&Jump");
  EXPECT_TRUE(Jump()->isDefault());
  EXPECT_EQ(Control<QPushButton>(window.get(), "cmdFindCart")->text(), "&Find");
  EXPECT_EQ(Control<QPushButton>(window.get(), "cmdCancel")->text(), "Cancel");
  for (const char* name :
       {"cmdSmallScroll0", "cmdSmallScroll1", "cmdBigScroll0", "cmdBigScroll1"}) {
    EXPECT_EQ(Control<QToolButton>(window.get(), name)->text(), "");
    EXPECT_FALSE(Control<QToolButton>(window.get(), name)->icon().isNull());
  }
  const auto* twice = Control<QCheckBox>(window.get(), "chkDouble");
  EXPECT_EQ(twice->text(), "");
  EXPECT_EQ(twice->toolTip(),
            "When checked, this doubles the height of each cart, giving more display space for the "
            "cart descriptions.");
  EXPECT_TRUE(Control<QStatusBar>(window.get(), "StatusBar1")->isVisible());
  EXPECT_FALSE(Control<QFrame>(window.get(), "pnlDescription")->isVisible());
  EXPECT_NE(Control<QFrame>(window.get(), "picBrowser"), nullptr);
  EXPECT_NE(Control<QFrame>(window.get(), "pnlJumpCart"), nullptr);
}

TEST_F(CartBrowserFormTest, EverythingHasANameAndAPlaceInTheTabOrder) {
  ExpectEverythingNamed(window.get());
  ExpectFocusSeen(window.get());
  EXPECT_EQ(TabOrder(window.get()),
            (QStringList{"txtCartNumber", "cmdJumpCart", "cmdFindCart", "cmdBigScroll0",
                         "cmdSmallScroll0", "cmdSmallScroll1", "cmdBigScroll1", "chkDouble",
                         "cmdCancel"}));
}

TEST_F(CartBrowserFormTest, TheDescriptionStandsAboveTheListWhenItIsAskedFor) {
  window->hide();
  window->ShowDescription = true;
  window->SetDescription("Pick <b>one</b>\n& more");
  Show();
  const auto* panel = Control<QFrame>(window.get(), "pnlDescription");
  EXPECT_TRUE(panel->isVisible());
  EXPECT_EQ(panel->frameShape(), QFrame::StyledPanel) << "set off from the list";
  EXPECT_EQ(Control<QLabel>(window.get(), "lblDescription")->text(), "Pick <b>one</b> & more");
  EXPECT_LT(panel->geometry().bottom(),
            Control<QFrame>(window.get(), "picBrowser")->geometry().top());
}

TEST_F(CartBrowserFormTest, NothingOverlapsAtAnySize) {
  const QSize sizes[] = {window->minimumSize(), {500, 400}, {1600, 1200}};
  for (const QSize& size : sizes) {
    window->resize(size);
    QApplication::processEvents();
    EXPECT_EQ(window->size(), size);
    const QList<QWidget*> controls = {Control<QLabel>(window.get(), "lblJumpToCart"),
                                      Number(),
                                      Jump(),
                                      Control<QWidget>(window.get(), "cmdFindCart"),
                                      Control<QWidget>(window.get(), "cmdBigScroll0"),
                                      Control<QWidget>(window.get(), "cmdSmallScroll0"),
                                      Control<QWidget>(window.get(), "cmdSmallScroll1"),
                                      Control<QWidget>(window.get(), "cmdBigScroll1"),
                                      Control<QWidget>(window.get(), "pnlCartLabels"),
                                      Control<QWidget>(window.get(), "chkDouble"),
                                      Control<QWidget>(window.get(), "cmdCancel")};
    for (const QWidget* one : controls) {
      const QRect place(one->mapTo(window.get(), QPoint()), one->size());
      EXPECT_TRUE(window->rect().contains(place)) << one->objectName().toStdString();
      for (const QWidget* other : controls) {
        if (one == other) continue;
        const QRect otherPlace(other->mapTo(window.get(), QPoint()), other->size());
        EXPECT_FALSE(place.intersects(otherPlace))
            << one->objectName().toStdString() << " and " << other->objectName().toStdString();
      }
    }
  }
}

TEST_F(CartBrowserFormTest, TheLastRowIsCutOffAndAPartOfARowIsCountedTwice) {
  const std::pair<int, int> cases[] = {
      {10 * 21 + 2, 10}, {10 * 21 + 7 + 2, 11}, {10 * 21 + 14 + 2, 12}};
  for (const auto& [height, rows] : cases) {
    GiveRows(height);
    EXPECT_EQ(NumbersShown().size(), static_cast<size_t>(rows)) << height;
    EXPECT_EQ(Button(rows)->geometry().top(), 1 + (rows - 1) * 21);
    EXPECT_EQ(Button(rows)->height(), 21);
  }
  SetFrameHeight(8 * 21 + 2);
  EXPECT_EQ(NumbersShown().size(), 8U) << "rows of an earlier layout are hidden";
}

TEST_F(CartBrowserFormTest, ASmallStoreShowsOnlyItsCarts) {
  window.reset();
  OpenStore(3);
  Open();
  EXPECT_EQ(NumbersShown(), (std::vector<std::string>{"1", "2", "3"}));
  Press("cmdBigScroll1");
  ExpectAt("1", 3);
}

TEST_F(CartBrowserFormTest, ARowIsDrawnInTheColoursOfItsCart) {
  PutCart(2, RecordOfLines("SECOND", "", "", 0x00102030, 0x00FFEEDD));
  PutCart(3, RecordOfLines("THIRD", "", "", static_cast<int32_t>(0x8000000D),
                           static_cast<int32_t>(0x8000000E)));
  window->RefreshRows();
  EXPECT_EQ(Picture(Panel(2)).pixelColor(1, 1), QColor(0x30, 0x20, 0x10));
  const QPalette palette = Panel(3)->palette();
  EXPECT_EQ(Picture(Panel(3)).pixelColor(1, 1), palette.color(QPalette::Highlight));
  EXPECT_EQ(Picture(Panel(9)).pixelColor(1, 1),
            ToQColor(gBlankCartInfo.BackColor, Panel(9)->palette()))
      << "an unused cart";
  QPalette dark = palette;
  dark.setColor(QPalette::Highlight, QColor(1, 2, 3));
  window->setPalette(dark);
  EXPECT_EQ(Picture(Panel(3)).pixelColor(1, 1), QColor(1, 2, 3)) << "follows the theme";
  EXPECT_EQ(Picture(Button(1)).pixelColor(5, 5), QColor(0, 0, 0xC0)) << "the lit button";
}

TEST_F(CartBrowserFormTest, ADescriptionIsPlainTextWhateverItHolds) {
  PutCart(2, RecordOfLines("<b>A</b> &B\r\n\tC", "", ""));
  PutCart(3, RecordOfLines(std::string("NUL\0\x01\x7F END", 10), "", ""));
  window->RefreshRows();
  EXPECT_EQ(Panel(2)->Shown().Caption, "<b>A</b> &B   C");
  EXPECT_EQ(Panel(3)->Shown().Caption.find_first_of(std::string("\0\x01\x7F", 3)),
            std::string::npos);
  Press("chkDouble");
  EXPECT_EQ(Panel(2)->Shown().Caption, "<b>A</b> &B   C\n\n");
}

TEST_F(CartBrowserFormTest, ADescriptionIsCutHardToItsPanel) {
  const std::string line(50, 'W');
  PutCart(2, RecordOfLines(line, line, line));
  window->RefreshRows();
  const std::string cut = Panel(2)->Shown().Caption;
  EXPECT_LT(cut.size(), 150U);
  const QFontMetricsF metrics(Panel(2)->font());
  const double room = Panel(2)->width() - 8;
  EXPECT_LE(metrics.horizontalAdvance(QString::fromStdString(cut)), room + 0.5);
  EXPECT_GT(metrics.horizontalAdvance(QString::fromStdString(cut + "W")), room);
  window->resize(3000, window->height());
  QApplication::processEvents();
  EXPECT_EQ(Panel(2)->Shown().Caption.size(), 150U) << "all three lines";
}

TEST_F(CartBrowserFormTest, DoubleHeightHalvesTheRowsAndShowsEachLineOnItsOwn) {
  PutCart(2, RecordOfLines("ONE", "TWO", "THREE"));
  Press("chkDouble");
  EXPECT_EQ(NumbersShown().size(), 5U);
  EXPECT_EQ(Panel(2)->Shown().Caption, "ONE\nTWO\nTHREE");
  EXPECT_EQ(Panel(2)->height(), 42);
  EXPECT_LE(QFontMetrics(Panel(2)->font()).height() * 3, 42) << "three lines fit";
  Press("chkDouble");
  EXPECT_EQ(NumbersShown().size(), 10U);
}

TEST_F(CartBrowserFormTest, AMouseReleaseOnTheTickBoxGivesTheFocusToTheNumber) {
  auto* twice = Control<QCheckBox>(window.get(), "chkDouble");
  twice->setFocus();
  QTest::mouseClick(twice, Qt::LeftButton, {}, QPoint(8, twice->height() / 2));
  QApplication::processEvents();
  EXPECT_TRUE(twice->isChecked());
  EXPECT_TRUE(Number()->hasFocus());
}

TEST_F(CartBrowserFormTest, KeysScrollByRowAndPage) {
  struct Case {
    Qt::Key key;
    const char* first;
    int row;
  };
  const Case cases[] = {
      {Qt::Key_Down, "1", 2},      {Qt::Key_Down, "1", 3},   {Qt::Key_Up, "1", 2},
      {Qt::Key_PageDown, "11", 2}, {Qt::Key_PageUp, "1", 2}, {Qt::Key_PageUp, "1", 1},
      {Qt::Key_Home, "1", 1},      {Qt::Key_End, "1", 1},    {Qt::Key_Insert, "1", 1},
      {Qt::Key_F5, "1", 1},        {Qt::Key_L, "1", 1},      {Qt::Key_Up, "1", 1}};
  for (const Case& c : cases) {
    Key(c.key);
    ExpectAt(c.first, c.row);
  }
  EXPECT_TRUE(window->isVisible());
}

TEST_F(CartBrowserFormTest, KeysAreSeenBeforeTheControlsAndOnlyOnce) {
  for (const char* control : {"cmdFindCart", "cmdBigScroll0", "chkDouble", "txtCartNumber"}) {
    window->JumpToCart(50);
    window->JumpToCart(1);
    Control<QWidget>(window.get(), control)->setFocus();
    Key(Qt::Key_PageDown);
    ExpectAt("11", 1);
  }
}

TEST_F(CartBrowserFormTest, TheButtonsScrollAsTheKeysDo) {
  Press("cmdSmallScroll1");
  ExpectAt("1", 2);
  Press("cmdBigScroll1");
  ExpectAt("11", 2);
  Press("cmdSmallScroll0");
  ExpectAt("11", 1);
  Press("cmdSmallScroll0");
  ExpectAt("10", 1);
  Press("cmdBigScroll0");
  ExpectAt("1", 1);
}

TEST_F(CartBrowserFormTest, AtTheLastCartDownReadsNothing) {
  window->JumpToCart(100);
  const auto reads = os.script.CountOf("Files.GetRecord");
  Key(Qt::Key_Down);
  EXPECT_EQ(os.script.CountOf("Files.GetRecord"), reads);
  EXPECT_EQ(Number()->text(), "100");
}

TEST_F(CartBrowserFormTest, JumpTakesTheCartAtItsSecondPress) {
  Number()->setText("42");
  Key(Qt::Key_Return);
  ExpectAt("42", 1);
  EXPECT_EQ(Number()->selectedText(), "42");
  EXPECT_TRUE(opener.told.empty());
  Key(Qt::Key_Return);
  ExpectClosedWith(42);
}

TEST_F(CartBrowserFormTest, JPressesJumpAndIsNotTyped) {
  Number()->setText("5");
  Key(Qt::Key_J);
  ExpectAt("1", 5);
  Key(Qt::Key_J);
  ExpectClosedWith(5);
}

TEST_F(CartBrowserFormTest, JumpIsEnabledWhileTheNumberIsACart) {
  const std::pair<const char*, bool> cases[] = {{"1", true},  {"100", true}, {"101", false},
                                                {"0", false}, {"", false},   {"x", false},
                                                {"007", true}};
  for (const auto& [text, enabled] : cases) {
    Number()->setText(text);
    EXPECT_EQ(Jump()->isEnabled(), enabled) << text;
  }
}

TEST_F(CartBrowserFormTest, OnlyDigitsAreTypedAndNoMoreThanTheStoreNeeds) {
  EXPECT_EQ(Number()->maxLength(), 3);
  Number()->clear();
  QTest::keyClicks(Number(), "1x2-3 ");
  EXPECT_EQ(Number()->text(), "123");
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Number()->text(), "12");
}

TEST_F(CartBrowserFormTest, AClickOnANumberTakesItsCart) {
  window->JumpToCart(21);
  QTest::mousePress(Button(4), Qt::LeftButton);
  ExpectAt("21", 4);
  QTest::mouseRelease(Button(4), Qt::LeftButton);
  ExpectClosedWith(24);
}

TEST_F(CartBrowserFormTest, AClickOnAnEmptyCartTakesItToo) {
  QTest::mouseClick(Panel(7), Qt::LeftButton);
  ExpectClosedWith(7);
}

TEST_F(CartBrowserFormTest, TheRightButtonOnlySelects) {
  QTest::mouseClick(Panel(7), Qt::RightButton);
  ExpectAt("1", 7);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(CartBrowserFormTest, ARowWithAudioCanBeDraggedWhereThatIsAllowed) {
  struct Case {
    int row;
    bool allowed;
    int distance;  // pixels
    Qt::MouseButton button;
    const char* carried;
  };
  const Case cases[] = {{2, true, 6, Qt::LeftButton, "2"},
                        {2, true, 4, Qt::LeftButton, ""},
                        {2, false, 6, Qt::LeftButton, ""},
                        {3, true, 6, Qt::LeftButton, ""},
                        {2, true, 6, Qt::RightButton, ""}};
  PutCart(2, 30);
  window->RefreshRows();
  window->PlayOnActivate = true;
  for (const Case& c : cases) {
    window->AllowDrag = c.allowed;
    QString carried;
    QTimer::singleShot(0, window.get(), [&] {
      for (const auto* drag : window->findChildren<QDrag*>()) {
        carried = drag->mimeData()->text();
        CancelDrag();
      }
    });
    const QPointF start(50, 10);
    const QPointF end = start + QPointF(c.distance, 0);
    const auto send = [&](QEvent::Type type, QPointF at, Qt::MouseButtons held) {
      QMouseEvent event(type, at, Panel(c.row)->mapToGlobal(at),
                        type == QEvent::MouseMove ? Qt::NoButton : c.button, held, {});
      QApplication::sendEvent(Panel(c.row), &event);
    };
    send(QEvent::MouseButtonPress, start, c.button);
    if (*c.carried != '\0') MoveAlong();
    send(QEvent::MouseMove, end, c.button);
    QApplication::processEvents();
    send(QEvent::MouseButtonRelease, end, {});
    EXPECT_EQ(carried, c.carried) << &c - cases;
  }
}

TEST_F(CartBrowserFormTest, WithPlayOnActivateNoRowIsTaken) {
  window->PlayOnActivate = true;
  QTest::mouseClick(Panel(7), Qt::LeftButton);
  QTest::mouseClick(Button(8), Qt::LeftButton);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Number()->text(), "8");
}

TEST_F(CartBrowserFormTest, ItOpensOnTheCartOfItsTag) {
  window.reset();
  Open("42");
  ExpectAt("42", 1);
  EXPECT_EQ(window->Tag, "");
  EXPECT_TRUE(Number()->hasFocus());
  window.reset();
  Open("4000");
  EXPECT_EQ(Number()->text(), "100");
}

TEST_F(CartBrowserFormTest, CancelAndEscapeReturnNothing) {
  Press("cmdCancel");
  ExpectClosedWith(0);
  opener.told.clear();
  window->ParentForm = &opener;
  Show();
  Key(Qt::Key_Escape);
  ExpectClosedWith(0);
}

TEST_F(CartBrowserFormTest, TheCloseButtonHidesAndTellsNobody) {
  int hidden = 0;
  QObject::connect(window.get(), &frmCartBrowser::hidden, [&] { ++hidden; });
  window->JumpToCart(42);
  window->close();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(hidden, 1);
  EXPECT_TRUE(opener.told.empty());
  EXPECT_EQ(window->ParentForm, &opener);
  Show();
  ExpectAt("42", 1);
}

TEST_F(CartBrowserFormTest, AnOpenerThatFailsIsNoConcernOfTheBrowser) {
  opener.fails = true;
  Press("cmdCancel");
  ExpectClosedWith(0);
  EXPECT_EQ(StoppedBy(), 0);
}

TEST_F(CartBrowserFormTest, ItStandsAtTheTopRightOfTheScreen) {
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  EXPECT_EQ(window->frameGeometry().top(), screen.top() + 2);
  EXPECT_EQ(window->frameGeometry().right() + 1, screen.right() + 1 - 2);
}

TEST_F(CartBrowserFormTest, NotesOpenForACartThatHasThem) {
  folder().WriteFile("part1/VEL00002.TXT", "notes");
  Key(Qt::Key_T);
  EXPECT_TRUE(notes.empty());
  window->JumpToCart(2);
  Key(Qt::Key_T);
  window->ChildrenModal = true;
  Key(Qt::Key_T, Qt::ShiftModifier);
  ASSERT_EQ(notes.size(), 2U);
  EXPECT_EQ(notes[0], (std::pair<std::string, bool>{PartEntry(1).Path + "\\VEL00002.TXT", false}));
  EXPECT_TRUE(notes[1].second);
}

TEST_F(CartBrowserFormTest, TheSearchIsModalAsTheTableSays) {
  struct Case {
    Qt::Key key;
    bool childrenModal;
    bool modal;
  };
  const Case cases[] = {{Qt::Key_F, false, false}, {Qt::Key_F, true, true},
                        {Qt::Key_N, false, true},  {Qt::Key_N, true, false},
                        {Qt::Key_B, false, false}, {Qt::Key_B, true, true}};
  window->JumpToCart(7);
  for (const Case& c : cases) {
    window->ChildrenModal = c.childrenModal;
    Key(c.key);
    ASSERT_NE(Search(), nullptr);
    EXPECT_TRUE(Search()->isVisible()) << c.key;
    EXPECT_EQ(Search()->isModal(), c.modal) << c.key;
    EXPECT_EQ(Search()->StartCart, 7);
    EXPECT_EQ(Search()->CallingBrowser, static_cast<CartJumper*>(window.get()));
    Search()->close();
    QApplication::setActiveWindow(window.get());
  }
  Press("cmdFindCart");
  EXPECT_TRUE(Search()->isVisible());
  EXPECT_EQ(window->findChildren<frmFindCart*>().size(), 1) << "one window serves all searches";
  Press("cmdCancel");
  EXPECT_FALSE(Search()->isVisible()) << "a search goes with its browser";
}

TEST_F(CartBrowserFormTest, APartThatGoesAwayShowsEmptyRowsAndComesBack) {
  PutCart(2, RecordOfLines("SECOND", "", ""));
  window->RefreshRows();
  const std::string caption = Panel(2)->Shown().Caption;
  os.script.FailNamed("Files.GetRecord", 0, 57);
  window->RefreshRows();
  EXPECT_EQ(Panel(2)->Shown().Caption, "");
  EXPECT_EQ(Panel(2)->Shown().Tag, "");
  EXPECT_EQ(Button(2)->text(), "2");
  os.script.Clear();
  window->RefreshRows();
  EXPECT_EQ(Panel(2)->Shown().Caption, caption);
  EXPECT_TRUE(ui.messages.empty());
}

}  // namespace
}  // namespace logchecker
