// The search's window: its controls, the walk with events in it, the results, and how it closes.
#include <QCheckBox>
#include <QDrag>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QTabWidget>
#include <QTimer>
#include <filesystem>

#include "cartbrowser/ui/SearchAnimation.h"
#include "cartstore/Velmar_Cart_Routines.h"
#include "common/SystemHelpers.h"
#include "common/ui/Icons.h"
#include "tests/cartbrowser/ui/FindCartForm.h"
#include "tests/support/ui/Dragging.h"

namespace logchecker {
namespace {

TEST_F(FindCartFormTest, HasItsCaptions) {
  EXPECT_EQ(window->windowTitle(), "Find a cart on the Audiowall");
  EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(The<QTabWidget>("tabFind")->tabText(0), "&Basic");
  EXPECT_EQ(The<QTabWidget>("tabFind")->tabText(1), "&Advanced");
  const std::pair<const char*, const char*> buttons[] = {
      {"chkSearchFromStart", "Search from the &start of the Audiowall"},
      {"chkNotes", "Search each carts &notes as well"},
      {"chkLimitLines", "Only Search these lines:"},
      {"chkLine1", "Line 1"},
      {"chkLine2", "Line 2"},
      {"chkLine3", "Line 3"},
      {"chkTimeSearch", "Time Rules"},
      {"cmdFind", "&Find"},
      {"cmdStop", "Sto&p"}};
  for (const auto& [name, text] : buttons) EXPECT_EQ(The<QAbstractButton>(name)->text(), text);
  const std::pair<const char*, const char*> labels[] = {
      {"lblFindText", "Find this &text:"},
      {"lblFindDirection", "Find &direction:"},
      {"lblTimeDesc", "Only search carts whose lengths are:"},
      {"lblMinSec", "(min:sec)"},
      {"lblTimeDesc2", "Give or Take:"},
      {"lblSearchCart", "Cart:"}};
  for (const auto& [name, text] : labels) EXPECT_EQ(The<QLabel>(name)->text(), text);
  QStringList tolerances;
  QList<int> seconds;
  const auto* combo = The<QComboBox>("comboLength");
  for (int row = 0; row < combo->count(); ++row) {
    tolerances.push_back(combo->itemText(row));
    seconds.push_back(combo->itemData(row).toInt());
  }
  EXPECT_EQ(tolerances, (QStringList{"3 Seconds", "5 Seconds", "10 Seconds", "30 Seconds",
                                     "1 Minute", "5 Minutes"}));
  EXPECT_EQ(seconds, (QList<int>{3, 5, 10, 30, 60, 300}));
}

TEST_F(FindCartFormTest, EverythingHasANameAndAPlaceInTheTabOrder) {
  ExpectEverythingNamed(window.get());
  ExpectFocusSeen(window.get());
  FindText("cart");
  ExpectEverythingNamed(window.get());
  ExpectFocusSeen(window.get());
  const QStringList basic = TabOrder(window.get());
  EXPECT_EQ(basic, (QStringList{"qt_tabwidget_tabbar", "cmbSearchText", "cmbSearchDirection",
                                "chkSearchFromStart", "chkNotes", "cmdFind", "lviewItems"}))
      << basic.join(" ").toStdString();
  The<QTabWidget>("tabFind")->setCurrentIndex(1);
  The<QCheckBox>("chkLimitLines")->click();
  The<QCheckBox>("chkTimeSearch")->click();
  ExpectEverythingNamed(window.get());
  ExpectFocusSeen(window.get());
  const QStringList advanced = TabOrder(window.get());
  EXPECT_EQ(advanced,
            (QStringList{"qt_tabwidget_tabbar", "chkLimitLines", "chkLine1", "chkLine2", "chkLine3",
                         "chkTimeSearch", "mskLength", "comboLength", "cmdFind", "lviewItems"}))
      << advanced.join(" ").toStdString();
}

TEST_F(FindCartFormTest, BeginsCollapsedAndGrowsForTheResults) {
  EXPECT_EQ(window->frameGeometry().height(), 183);
  EXPECT_FALSE(List()->isVisible());
  EXPECT_TRUE(Text()->hasFocus());
  EXPECT_FALSE(Stop()->isEnabled());
  EXPECT_TRUE(Find()->isDefault());
  EXPECT_FALSE(The<QLabel>("lblSearchCart")->isVisible());
  EXPECT_EQ(The<QLineEdit>("mskLength")->text(), "03:00");
  EXPECT_EQ(The<QComboBox>("comboLength")->currentText(), "10 Seconds");
  EXPECT_EQ(The<QComboBox>("cmbSearchDirection")->currentText(), "Forwards");
  FindText("cart");
  EXPECT_EQ(window->frameGeometry().height(), 342);
  EXPECT_TRUE(List()->isVisible());
  window->resize(700, 600);
  Find()->click();
  EXPECT_EQ(window->frameGeometry().height(), 342);
  window->close();
  Open();
  EXPECT_EQ(window->frameGeometry().height(), 183);
  EXPECT_FALSE(List()->isVisible());
}

TEST_F(FindCartFormTest, NothingIsCutAtTheLeastSize) {
  for (const int tab : {0, 1}) {
    The<QTabWidget>("tabFind")->setCurrentIndex(tab);
    window->resize(window->minimumSizeHint().width(), 183);
    QApplication::processEvents();
    for (const QWidget* control : window->findChildren<QWidget*>()) {
      const bool own = !control->objectName().isEmpty() && !control->objectName().startsWith("qt_");
      if (!own || !control->isVisible() || control->objectName() == "animFind") continue;
      EXPECT_GE(control->height(), control->minimumSizeHint().height())
          << control->objectName().toStdString();
      EXPECT_GE(control->width(), control->minimumSizeHint().width())
          << control->objectName().toStdString();
    }
  }
}

TEST_F(FindCartFormTest, ListsWhatItFinds) {
  FindText("cart");
  EXPECT_EQ(Numbers(), (QStringList{"5", "50", "200", "299"}));
  EXPECT_EQ(Cell(0, kFoundSortNumber), "000005");
  EXPECT_EQ(Cell(0, kFoundLine2), "WITH SPOONS");
  EXPECT_EQ(Cell(0, kFoundLength), ":30");
  EXPECT_EQ(SelectedRow(), 0);
  EXPECT_TRUE(List()->hasFocus());
  EXPECT_FALSE(Find()->isDefault());
  Text()->setFocus();
  EXPECT_TRUE(Find()->isDefault());
}

TEST_F(FindCartFormTest, TheColumnsHaveTheirWidths) {
  FindText("cart");
  const auto headers = FoundColumnHeaders(List()->width() * 15);
  EXPECT_TRUE(List()->isColumnHidden(kFoundSortNumber));
  for (size_t column = kFoundNumber; column < kFoundColumnCount; ++column) {
    EXPECT_EQ(List()->columnWidth(static_cast<int>(column)), (headers[column].width + 7) / 15);
    EXPECT_EQ(List()->model()->headerData(static_cast<int>(column), Qt::Horizontal).toString(),
              headers[column].caption);
  }
}

TEST_F(FindCartFormTest, SaysThatThereAreNone) {
  FindText("nothing like it");
  EXPECT_EQ(Numbers(), QStringList{""});
  EXPECT_EQ(Cell(0, kFoundLine1), "No carts found.");
  Key(Qt::Key_Return);
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(browser.jumps.empty());
}

TEST_F(FindCartFormTest, SearchesAsItsControlsSay) {
  PutCart(60, RecordOfLines("", "", "SIXTIETH"));
  struct Case {
    const char* text;
    int32_t start;
    std::vector<const char*> ticked;
    const char* length;
    QStringList numbers;
  };
  const Case cases[] = {
      {"cart", 50, {}, "", {"50", "200", "299"}},
      {"cart", 50, {"chkSearchFromStart"}, "", {"5", "50", "200", "299"}},
      {"*", 1, {}, "", {"5", "50", "60", "200", "299"}},
      {"*", 1, {"chkTimeSearch"}, "03:00", {"200"}},
      {"*", 1, {"chkTimeSearch"}, "00:30", {"5", "50", "60"}},
      {"forks", 1, {}, "", {"5"}},
      {"forks", 1, {"chkLimitLines", "chkLine3"}, "", {""}},
      {"SIXTIETH", 1, {"chkLimitLines", "chkLine1", "chkLine2"}, "", {"60"}},
      {"cart", 301, {}, "", {""}},
  };
  for (const Case& c : cases) {
    window->close();
    Open(c.start);
    for (const char* box : c.ticked) The<QCheckBox>(box)->click();
    if (*c.length != 0) The<QLineEdit>("mskLength")->setText(c.length);
    FindText(c.text);
    EXPECT_EQ(Numbers(), c.numbers) << &c - cases;
    if (The<QCheckBox>("chkTimeSearch")->isChecked()) The<QCheckBox>("chkTimeSearch")->click();
  }
}

TEST_F(FindCartFormTest, BackwardsGoesTheOtherWay) {
  window->close();
  Open(200);
  The<QComboBox>("cmbSearchDirection")->setCurrentIndex(1);
  EXPECT_EQ(The<QCheckBox>("chkSearchFromStart")->text(), "Search from the &end of the Audiowall");
  FindText("cart");
  EXPECT_EQ(Numbers(), (QStringList{"200", "50", "5"}));
  The<QCheckBox>("chkSearchFromStart")->click();
  Find()->click();
  EXPECT_EQ(Numbers(), (QStringList{"299", "200", "50", "5"}));
}

TEST_F(FindCartFormTest, TheLengthKeepsItsDigitsInTheirPlaces) {
  auto* length = The<QLineEdit>("mskLength");
  EXPECT_EQ(window->input.Length, "03:00");
  The<QTabWidget>("tabFind")->setCurrentIndex(1);
  The<QCheckBox>("chkTimeSearch")->click();
  length->clear();
  EXPECT_EQ(window->input.Length, "__:__");
  length->setCursorPosition(1);
  QTest::keyClicks(length, "x45");
  EXPECT_EQ(window->input.Length, "_4:5_");
}

TEST_F(FindCartFormTest, LinesAndLengthAreEnabledAsTheirBoxesAreTicked) {
  The<QTabWidget>("tabFind")->setCurrentIndex(1);
  The<QCheckBox>("chkLimitLines")->click();
  EXPECT_TRUE(The<QWidget>("chkLine2")->isEnabled());
  The<QCheckBox>("chkLine2")->click();
  The<QCheckBox>("chkLimitLines")->click();
  EXPECT_FALSE(The<QWidget>("chkLine2")->isEnabled());
  EXPECT_TRUE(The<QCheckBox>("chkLine2")->isChecked());
  EXPECT_FALSE(The<QWidget>("mskLength")->isEnabled());
  EXPECT_EQ(The<QWidget>("mskLength")->palette().color(QPalette::Disabled, QPalette::Base),
            QApplication::palette().color(QPalette::Active, QPalette::Button));
  The<QCheckBox>("chkTimeSearch")->click();
  for (const char* name :
       {"mskLength", "comboLength", "lblTimeDesc", "lblTimeDesc2", "lblMinSec"}) {
    EXPECT_TRUE(The<QWidget>(name)->isEnabled()) << name;
  }
}

TEST_F(FindCartFormTest, AllButStopIsDisabledDuringAWalkAndProgressIsShown) {
  std::vector<QString> progress;
  walk.atCart = [&](int cart) {
    if (cart % 100 == 0) progress.push_back(The<QLabel>("lblSearchCartNumber")->text());
    if (cart != 150) return;
    EXPECT_TRUE(Stop()->isEnabled());
    EXPECT_TRUE(Stop()->hasFocus());
    EXPECT_TRUE(The<QLabel>("lblSearchCart")->isVisible());
    for (const char* name : {"cmdFind", "cmbSearchText", "cmbSearchDirection", "chkSearchFromStart",
                             "chkNotes", "chkLimitLines", "chkTimeSearch", "frameDescriptions",
                             "frameTimeSearch", "chkLine1", "mskLength", "comboLength"}) {
      EXPECT_FALSE(The<QWidget>(name)->isEnabled()) << name;
    }
    Find()->click();
  };
  FindText("cart");
  EXPECT_EQ(walk.carts, 300);
  EXPECT_EQ(progress, (std::vector<QString>{"100", "200", "300"}));
  EXPECT_FALSE(The<QLabel>("lblSearchCartNumber")->isVisible());
  EXPECT_TRUE(Find()->isEnabled());
}

TEST_F(FindCartFormTest, StopIsObeyedAtOnceAndKeepsWhatWasFound) {
  const std::function<void()> stops[] = {[this] { Stop()->click(); },
                                         [this] { Key(Qt::Key_Escape); },
                                         [this] { Key(Qt::Key_Return); }};
  for (const auto& stop : stops) {
    walk.carts = 0;
    walk.atCart = [&](int cart) {
      if (cart == 60) QTimer::singleShot(0, window.get(), stop);
    };
    FindText("cart");
    EXPECT_EQ(walk.carts, 60);
    EXPECT_EQ(Numbers(), (QStringList{"5", "50"}));
    EXPECT_EQ(SelectedRow(), -1);
    EXPECT_TRUE(Text()->hasFocus());
    EXPECT_TRUE(window->isVisible());
  }
  walk.atCart = [&](int /*cart*/) { Stop()->click(); };
  FindText("nothing like it");
  EXPECT_EQ(Numbers(), QStringList());
}

TEST_F(FindCartFormTest, ClosingDuringAWalkEndsIt) {
  walk.atCart = [&](int cart) {
    if (cart == 60) window->close();
  };
  FindText("cart");
  EXPECT_EQ(walk.carts, 60);
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(Find()->isEnabled()) << "no control is touched";
  EXPECT_EQ(browser.jumps, std::vector<int32_t>{0});
  EXPECT_EQ(gLastSearches[0], "cart");
  walk.atCart = nullptr;
  Open();
  EXPECT_TRUE(Find()->isEnabled());
  EXPECT_EQ(Text()->currentText(), "cart");
  Find()->click();
  EXPECT_EQ(Numbers().size(), 4);
}

TEST_F(FindCartFormTest, AResultCanBeTakenDuringAWalk) {
  walk.atCart = [&](int cart) {
    if (cart != 60) return;
    List()->ShowAddedRows();
    List()->setCurrentIndex(List()->model()->index(1, kFoundNumber));
    List()->setFocus();
    Key(Qt::Key_Return);
  };
  FindText("cart");
  EXPECT_EQ(walk.carts, 60);
  EXPECT_EQ(browser.jumps, std::vector<int32_t>{50});
  EXPECT_FALSE(window->isVisible());
}

TEST_F(FindCartFormTest, ADoubleClickAndEnterTakeACart) {
  FindText("cart");
  QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, Middle(2));
  EXPECT_EQ(SelectedRow(), 2);
  QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, Middle(2));
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(browser.jumps, std::vector<int32_t>{200});
  EXPECT_EQ(gLastFoundCart, 200);
  Open();
  EXPECT_EQ(gLastFoundCart, 0);
  FindText("cart");
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_EQ(browser.jumps.back(), 50);
}

TEST_F(FindCartFormTest, HeadersSort) {
  FindText("cart");
  const auto click = [this](int column) { emit List()->header()->sectionClicked(column); };
  click(kFoundNumber);
  EXPECT_EQ(Numbers(), (QStringList{"5", "50", "200", "299"}));
  EXPECT_EQ(SelectedRow(), 0);
  click(kFoundNumber);
  EXPECT_EQ(Numbers(), (QStringList{"299", "200", "50", "5"}));
  EXPECT_EQ(SelectedRow(), 3) << "rows keep their selection";
  click(kFoundLine1);
  EXPECT_EQ(Numbers(), (QStringList{"200", "299", "50", "5"})) << "the order is kept";
  EXPECT_EQ(List()->header()->sortIndicatorSection(), static_cast<int>(kFoundLine1));
  EXPECT_EQ(List()->header()->sortIndicatorOrder(), Qt::DescendingOrder);
  Find()->click();
  EXPECT_EQ(Numbers(), (QStringList{"200", "299", "50", "5"})) << "sorting stays on";
}

TEST_F(FindCartFormTest, TheHistoryHoldsSixTexts) {
  for (const char* text : {"1", "2", "3", "4", "5", "6", "7", "3"}) FindText(text);
  QStringList entries;
  for (int i = 0; i < Text()->count(); ++i) entries.push_back(Text()->itemText(i));
  EXPECT_EQ(entries, (QStringList{"3", "7", "6", "5", "4", "2"}));
  EXPECT_EQ(Text()->currentText(), "3");
}

TEST_F(FindCartFormTest, ControlTabFlipsTheTabs) {
  auto* tabs = The<QTabWidget>("tabFind");
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(tabs->currentIndex(), 1);
  FindText("cart");
  EXPECT_EQ(tabs->currentIndex(), 1);
  EXPECT_TRUE(List()->hasFocus());
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(tabs->currentIndex(), 0);
  tabs->setCurrentIndex(1);
  Key(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(tabs->currentIndex(), 1) << "a tab that was clicked stays";
  Key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(tabs->currentIndex(), 0) << "with Shift held too";
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(tabs->currentIndex(), 0) << "Shift alone moves the focus";
  Key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_TRUE(window->isVisible());
}

TEST_F(FindCartFormTest, EscapeAndTheCloseBoxCloseWithoutAChoice) {
  browser.fails = true;
  Key(Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  Open();
  window->close();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(browser.jumps, (std::vector<int32_t>{0, 0}));
  EXPECT_EQ(window->CallingBrowser, nullptr);
  EXPECT_EQ(StoppedBy(), 0);
}

TEST_F(FindCartFormTest, TheNextShowingKeepsLengthAndToleranceAlone) {
  The<QCheckBox>("chkNotes")->click();
  The<QCheckBox>("chkSearchFromStart")->click();
  The<QCheckBox>("chkLimitLines")->click();
  The<QComboBox>("cmbSearchDirection")->setCurrentIndex(1);
  The<QTabWidget>("tabFind")->setCurrentIndex(1);
  The<QLineEdit>("mskLength")->setText("01:23");
  The<QComboBox>("comboLength")->setCurrentIndex(5);
  window->close();
  Open();
  for (const char* name : {"chkNotes", "chkSearchFromStart", "chkLimitLines"}) {
    EXPECT_FALSE(The<QCheckBox>(name)->isChecked()) << name;
  }
  EXPECT_EQ(The<QComboBox>("cmbSearchDirection")->currentIndex(), 0);
  EXPECT_EQ(The<QTabWidget>("tabFind")->currentIndex(), 0);
  EXPECT_EQ(The<QLineEdit>("mskLength")->text(), "01:23");
  EXPECT_EQ(The<QComboBox>("comboLength")->currentIndex(), 5);
}

TEST_F(FindCartFormTest, InFindNextModeASearchWithoutResultSaysSoAndCloses) {
  window->FindNextMode = true;
  DialogScript script;
  script.Answer(QMessageBox::Ok);
  FindText("nothing like it");
  EXPECT_EQ(script.Texts(),
            QStringList{"There were no further items found on the Audiowall that matched your "
                        "search"});
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(browser.jumps, std::vector<int32_t>{0});
  Open();
  EXPECT_FALSE(window->FindNextMode);
  window->FindNextMode = true;
  walk.atCart = [&](int /*cart*/) { Stop()->click(); };
  FindText("cart");
  EXPECT_FALSE(window->isVisible()) << "Stop closes as well";
}

TEST_F(FindCartFormTest, NotesAreSearchedAsFarAsTenThousandCharacters) {
  folder().WriteFile("part1/VEL00005.TXT", std::string(9990, '.') + "needle" + "haystack");
  const std::filesystem::path big = Path("part1") + "/VEL00050.RTF";
  folder().WriteFile("part1/VEL00050.RTF", "needle");
  std::filesystem::resize_file(big, size_t{300} * 1024 * 1024);
  The<QCheckBox>("chkNotes")->click();
  FindText("NEEDLE");
  EXPECT_EQ(Numbers(), (QStringList{"5", "50"}));
  FindText("haystack");
  EXPECT_EQ(Numbers(), QStringList{""});
  os.script.FailNamed("Files.OpenForInput", 0, 70);
  FindText("needle");
  EXPECT_EQ(Numbers(), QStringList{""}) << "notes that can't be read are empty";
}

TEST_F(FindCartFormTest, APartThatGoesAwayDuringAWalkMatchesNothingUntilItIsBack) {
  walk.atCart = [&](int cart) {
    if (cart == 20) os.script.FailNamed("Files.GetRecord", 0, 57);
    if (cart == 100) os.script.Clear();
  };
  FindText("cart");
  EXPECT_EQ(walk.carts, 300);
  EXPECT_EQ(Numbers(), (QStringList{"5", "200", "299"}));
}

TEST_F(FindCartFormTest, ControlCharactersShowAsBlanks) {
  PutCart(7, RecordOfLines("A\tB\r\nC", "<i>D</i>", ""));
  FindText("<i>");
  EXPECT_EQ(Cell(0, kFoundLine1), "A B  C");
  EXPECT_EQ(Cell(0, kFoundLine2), "<i>D</i>");
}

TEST_F(FindCartFormTest, ADragOfARowCarriesItsNumberUnderThePictureOfACart) {
  FindText("cart");
  QString carried;
  QImage shown;
  QTimer::singleShot(0, window.get(), [&] {
    for (const auto* drag : List()->findChildren<QDrag*>()) {
      carried = drag->mimeData()->text();
      shown = drag->pixmap().toImage();
      CancelDrag();
    }
  });
  const auto send = [&](QEvent::Type type, QPointF at) {
    QMouseEvent event(type, at, List()->viewport()->mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton,
                      {});
    QApplication::sendEvent(List()->viewport(), &event);
  };
  const QPointF start = Middle(1);
  send(QEvent::MouseButtonPress, start);
  send(QEvent::MouseMove, start + QPointF(1, 0));
  EXPECT_EQ(List()->Tag, "") << "15 twips are not enough";
  MoveAlong();
  send(QEvent::MouseMove, start + QPointF(3, 0));
  EXPECT_EQ(List()->Tag, "50");
  QApplication::processEvents();
  EXPECT_EQ(carried, "50");
  EXPECT_FALSE(shown.isNull());
  EXPECT_EQ(shown, IconNamed("cart").pixmap(32).toImage());
}

TEST_F(FindCartFormTest, WithoutItsFileTheAnimationIsMissing) {
  os.programFolder = folder().Path();
  window.reset();
  Open();
  EXPECT_TRUE(window->AnimationMissing);
  EXPECT_FALSE(The<SearchAnimation>("animFind")->isVisible());
  FindText("cart");
  EXPECT_EQ(Numbers().size(), 4);
}

// In milliseconds; a machine under load is slow to decode.
constexpr int kPatience = 30000;

TEST_F(FindCartFormTest, TheAnimationMovesWhileItPlaysAndThenStandsStill) {
  auto* film = The<SearchAnimation>("animFind");
  if (window->AnimationMissing) GTEST_SKIP() << "this build plays no films";
  const auto picture = [&] { return film->grab().toImage(); };
  // The first picture may be there by now; without one there is nothing but the background.
  const auto isEmpty = [](const QImage& image) {
    QImage plain = image;
    plain.fill(image.pixelColor(0, 0));
    return image == plain;
  };
  ASSERT_TRUE(QTest::qWaitFor([&] { return !isEmpty(picture()); }, kPatience))
      << "its first picture";
  SearchAnimation opened;
  opened.resize(film->size());
  ASSERT_TRUE(opened.Open(GetProgramFolder() + "\\find.avi"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !isEmpty(opened.grab().toImage()); }, kPatience))
      << "one that was only opened stands at its first picture";
  const QImage first = picture();
  film->Play();
  EXPECT_TRUE(QTest::qWaitFor([&] { return picture() != first; }, kPatience));
  film->Stop();
  EXPECT_TRUE(QTest::qWaitFor([&] { return picture() == first; }, kPatience));
}

TEST_F(FindCartFormTest, AFileThatIsNoFilmCountsAsMissing) {
  folder().WriteFile("find.avi", "no film");
  os.programFolder = folder().Path();
  window.reset();
  Open();
  EXPECT_TRUE(QTest::qWaitFor([&] { return window->AnimationMissing; }, kPatience));
  EXPECT_FALSE(The<SearchAnimation>("animFind")->isVisible());
}

}  // namespace
}  // namespace logchecker
