#include "dialogs/ui/frmSelectHour.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include "common/Dates.h"
#include "dialogs/ui/HourDial.h"
#include "tests/support/ui/PaintCounter.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

constexpr int32_t kDay = 46402;  // 15 January 2027, a Friday

int32_t Day(int year, unsigned month, unsigned day) {
  return DayOfDate(std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day));
}

// For as long as it lives no two colours of the desktop are the same.
class DistinctColours {
 public:
  DistinctColours() : before_(QApplication::palette()) {
    QPalette distinct = before_;
    int grey = 0;
    for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::Text,
                            QPalette::Button, QPalette::ButtonText, QPalette::Highlight,
                            QPalette::HighlightedText, QPalette::PlaceholderText}) {
      grey += 20;
      distinct.setColor(role, QColor(grey, grey, grey));
    }
    QApplication::setPalette(distinct);
  }
  DistinctColours(const DistinctColours&) = delete;
  DistinctColours& operator=(const DistinctColours&) = delete;
  ~DistinctColours() { QApplication::setPalette(before_); }

  static QColor Of(QPalette::ColorRole role) { return QApplication::palette().color(role); }

 private:
  QPalette before_;
};

class SelectHourTest : public WindowTest {
 protected:
  SelectHourTest() { ui.pointer = MousePointer::kDefault; }

  void Open(const std::string& tag) {
    picker.Tag = tag;
    picker.SetMinutes("00");
    picker.show();
    QApplication::setActiveWindow(&picker);
  }
  QLabel* Label(int i) { return Control<QLabel>(&picker, qPrintable(QString("lblDay%1").arg(i))); }
  // The number of the label with a border, -1 for none.
  int Marked() {
    int marked = -1;
    for (int i = 0; i < 37; ++i) {
      if (Label(i)->frameShape() == QFrame::Box) marked = i;
    }
    return marked;
  }
  QString MarkedText() { return Marked() < 0 ? QString() : Label(Marked())->text(); }
  QColor Background(int i) { return Label(i)->palette().color(QPalette::Window); }
  QColor Foreground(int i) { return Label(i)->palette().color(QPalette::WindowText); }
  void Press(const char* button) { Control<QPushButton>(&picker, button)->click(); }
  QLineEdit* Hour() { return Control<QLineEdit>(&picker, "TimeT"); }
  QLineEdit* Minutes() { return Control<QLineEdit>(&picker, "txtMinutes"); }
  QComboBox* Months() { return Control<QComboBox>(&picker, "MonthList"); }
  QScrollBar* Days() { return Control<QScrollBar>(&picker, "DayScroll"); }
  QScrollBar* Years() { return Control<QScrollBar>(&picker, "YearScroll"); }

  frmSelectHour picker;
};

TEST_F(SelectHourTest, StartsOnTheTagsDayAndHour) {
  Open("4640200");
  EXPECT_EQ(picker.windowTitle(), "Select Time");
  EXPECT_EQ(Control<QLabel>(&picker, "lblYear")->text(), "2027");
  EXPECT_EQ(Months()->currentIndex(), 0);
  EXPECT_EQ(MarkedText(), "15");
  EXPECT_EQ(Hour()->text(), "0");
  EXPECT_EQ(Minutes()->text(), "00");
  EXPECT_EQ(Days()->value(), 15);
  EXPECT_EQ(Years()->value(), -2027);
}

TEST_F(SelectHourTest, WithoutATagStartsAnHourBeforeNow) {
  os.now = kDay + 10.5 / 24;
  Open("");
  EXPECT_EQ(MarkedText(), "15");
  EXPECT_EQ(Hour()->text(), "9");
}

TEST_F(SelectHourTest, JustAfterMidnightStartsOnYesterdaysLastHour) {
  os.now = kDay + 0.2 / 24;
  Open("");
  EXPECT_EQ(MarkedText(), "14");
  EXPECT_EQ(Hour()->text(), "23");
}

TEST_F(SelectHourTest, ANegativeHourInTheTagIsTheDayBefore) {
  Open("46402-1");
  EXPECT_EQ(MarkedText(), "14");
  EXPECT_EQ(Hour()->text(), "23");
}

TEST_F(SelectHourTest, AYearOutOfReachBecomesThePresentOneAndKeepsDayAndMonth) {
  os.now = kDay;
  Open("1000000");  // 18 May 1927
  EXPECT_EQ(Control<QLabel>(&picker, "lblYear")->text(), "2027");
  EXPECT_EQ(Months()->currentIndex(), 4);
  EXPECT_EQ(MarkedText(), "18");
}

TEST_F(SelectHourTest, MinutesOfTheTagShowWhereTheyAreNotZero) {
  picker.AskMinutes = true;
  Open("4640207:05");
  EXPECT_EQ(Minutes()->text(), "05");
  EXPECT_EQ(Hour()->text(), "7");
  EXPECT_FALSE(Minutes()->isReadOnly());
}

TEST_F(SelectHourTest, MinutesAreLockedUnlessTheyAreAskedFor) {
  Open("4640200");
  EXPECT_TRUE(Minutes()->isReadOnly());
}

TEST_F(SelectHourTest, TheMinutesHaveTheColoursOfABoxOnlyWhereTheyAreAskedFor) {
  const DistinctColours desktop;
  for (const bool asked : {false, true, false}) {
    picker.AskMinutes = asked;
    Open("4640200");
    const QPalette colours = Minutes()->palette();
    EXPECT_EQ(colours.color(QPalette::Base), desktop.Of(asked ? QPalette::Base : QPalette::Button));
    EXPECT_EQ(colours.color(QPalette::Text),
              desktop.Of(asked ? QPalette::Text : QPalette::ButtonText));
    Press("CancelB");
  }
}

TEST_F(SelectHourTest, OkGivesFiveDigitsAndTwoOfTheHour) {
  Open("4640200");
  Hour()->setText("7");
  Press("OKB");
  EXPECT_EQ(picker.Tag, "4640207");
  EXPECT_FALSE(picker.isVisible());
}

TEST_F(SelectHourTest, OkWithMinutesGivesThemBehindAColonAndAsksForThemNoMore) {
  picker.AskMinutes = true;
  Open("4640207:05");
  Press("OKB");
  EXPECT_EQ(picker.Tag, "4640207:05");
  EXPECT_FALSE(picker.AskMinutes);
  EXPECT_EQ(Minutes()->text(), "00");
}

TEST_F(SelectHourTest, CancelEscapeAndTheCloseBoxGiveAnEmptyTagAndKeepTheWindow) {
  for (int way = 0; way < 3; ++way) {
    picker.AskMinutes = true;
    Open("4640207:05");
    if (way == 0) Press("CancelB");
    if (way == 1) QTest::keyClick(&picker, Qt::Key_Escape);
    if (way == 2) CloseByUser(&picker);
    EXPECT_EQ(picker.Tag, "") << way;
    EXPECT_FALSE(picker.isVisible()) << way;
    EXPECT_FALSE(picker.AskMinutes) << way;
    EXPECT_EQ(Minutes()->text(), "00") << way;
  }
}

TEST_F(SelectHourTest, OnlyTheUsersCloseIsRefused) {
  Open("4640207:05");
  EXPECT_FALSE(CloseByUser(&picker));
  Open("4640207:05");
  EXPECT_TRUE(picker.close());
  Open("4640500:00");
  EXPECT_EQ(MarkedText(), "18") << "the next showing begins anew";
}

TEST_F(SelectHourTest, AtAFullHourThePresentOneIsTheOneBefore) {
  for (int hour = 1; hour < 24; ++hour) {
    os.now = kDay + hour / 24.0;
    Open("");
    EXPECT_EQ(Control<QLineEdit>(&picker, "TimeT")->text(), QString::number(hour - 1));
    EXPECT_EQ(MarkedText(), "15") << hour;
    Press("CancelB");
  }
}

// A platform's word that a window is active can outlive the window's showing.
TEST_F(SelectHourTest, AWindowThatGoesDoesNotBeginAShowing) {
  Open("4640207:05");
  Press("CancelB");
  QApplication::setActiveWindow(&picker);
  ASSERT_TRUE(picker.isActiveWindow());
  ASSERT_FALSE(picker.isVisible());
  Open("4640500:00");
  EXPECT_EQ(MarkedText(), "18");
}

TEST_F(SelectHourTest, TakesItsTagOnceAShowing) {
  Open("4640200");
  QTest::mouseClick(Label(0 + 9), Qt::LeftButton);
  const QString chosen = MarkedText();
  picker.Tag = "4000000";
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  QApplication::setActiveWindow(&picker);
  EXPECT_EQ(MarkedText(), chosen);
  Press("CancelB");
  Open("4640200");
  EXPECT_EQ(MarkedText(), "15");
}

TEST_F(SelectHourTest, TheMonthStandsInItsLabels) {
  Open("4640200");
  // 1 January 2027 is a Friday.
  EXPECT_EQ(Label(4)->text(), "");
  EXPECT_EQ(Label(5)->text(), "1");
  EXPECT_EQ(Label(35)->text(), "31");
  EXPECT_EQ(Label(36)->text(), "");
  EXPECT_EQ(Label(19)->accessibleName(), "15 January 2027");
}

TEST_F(SelectHourTest, AMonthThatBeginsOnASundayStartsInTheFirstLabel) {
  Open(std::to_string(Day(2026, 11, 3)) + "00");
  EXPECT_EQ(Label(0)->text(), "1");
}

TEST_F(SelectHourTest, SundaysAreRedAllElseBlackOnWhite) {
  Open("4640200");
  Hour()->setFocus();
  for (int i = 0; i < 37; ++i) {
    EXPECT_EQ(Foreground(i), i % 7 == 0 ? QColor(255, 0, 0) : QColor(0, 0, 0)) << i;
    EXPECT_EQ(Background(i), QColor(255, 255, 255)) << i;
  }
  EXPECT_EQ(Control<QLabel>(&picker, "lbl0")->palette().color(QPalette::WindowText),
            QColor(255, 0, 0));
  const QString headings[] = {"S", "M", "T", "W", "T", "F", "S"};
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(Control<QLabel>(&picker, qPrintable(QString("lbl%1").arg(i)))->text(), headings[i]);
  }
}

TEST_F(SelectHourTest, WithTheFocusTheMarkedDayIsReversed) {
  Open("4640200");
  Days()->setFocus();
  EXPECT_EQ(Background(Marked()), QColor(0, 0, 128));
  EXPECT_EQ(Foreground(Marked()), QColor(255, 255, 255));
  Days()->setValue(17);  // a Sunday
  EXPECT_EQ(Background(Marked()), QColor(0, 0, 128));
  EXPECT_EQ(Foreground(Marked()), QColor(255, 0, 0));
  Hour()->setFocus();
  EXPECT_EQ(Background(Marked()), QColor(255, 255, 255));
  EXPECT_EQ(Foreground(Marked()), QColor(255, 0, 0));
}

TEST_F(SelectHourTest, AClickTakesTheDayAndOutsideTheMonthItsFirstOrLast) {
  Open("4640200");
  QTest::mouseClick(Label(10), Qt::LeftButton);
  EXPECT_EQ(MarkedText(), "6");
  EXPECT_EQ(Days()->value(), 6);
  QTest::mouseClick(Label(0), Qt::LeftButton);
  EXPECT_EQ(MarkedText(), "1");
  QTest::mouseClick(Label(36), Qt::LeftButton);
  EXPECT_EQ(MarkedText(), "31");
}

TEST_F(SelectHourTest, UpAndDownMoveByAWeekLeftAndRightByADay) {
  Open("4640200");
  Days()->setFocus();
  const struct {
    Qt::Key key;
    const char* day;
  } steps[] = {{Qt::Key_Down, "22"}, {Qt::Key_Right, "23"}, {Qt::Key_Up, "16"},
               {Qt::Key_Left, "15"}, {Qt::Key_PageUp, "8"}, {Qt::Key_Up, "1"},
               {Qt::Key_Up, "1"}};
  for (const auto& step : steps) {
    QTest::keyClick(Days(), step.key);
    EXPECT_EQ(MarkedText(), step.day);
  }
  EXPECT_EQ(Days()->minimum(), 0);
  EXPECT_EQ(Days()->maximum(), 31);
  EXPECT_EQ(Days()->pageStep(), 7);
}

TEST_F(SelectHourTest, AShorterMonthLowersTheDayAndItStaysLowered) {
  Open(std::to_string(Day(2027, 1, 31)) + "00");
  Months()->setCurrentIndex(1);
  EXPECT_EQ(MarkedText(), "28");
  Months()->setCurrentIndex(2);
  EXPECT_EQ(MarkedText(), "28");
}

TEST_F(SelectHourTest, FebruaryOf2100ShowsTwentyNineDaysAndItsLastComesOutAsThe28th) {
  Open(std::to_string(Day(2100, 2, 1)) + "00");
  QTest::mouseClick(Label(36), Qt::LeftButton);
  EXPECT_EQ(MarkedText(), "29");
  Press("OKB");
  EXPECT_EQ(picker.Tag, std::to_string(Day(2100, 2, 28)) + "00");
}

TEST_F(SelectHourTest, TheUpperArrowOfTheYearRaisesItWithin1980And2999) {
  Open("4640200");
  Years()->triggerAction(QAbstractSlider::SliderSingleStepSub);
  EXPECT_EQ(Control<QLabel>(&picker, "lblYear")->text(), "2028");
  Years()->triggerAction(QAbstractSlider::SliderToMinimum);
  EXPECT_EQ(Control<QLabel>(&picker, "lblYear")->text(), "2999");
  Years()->triggerAction(QAbstractSlider::SliderToMaximum);
  EXPECT_EQ(Control<QLabel>(&picker, "lblYear")->text(), "1980");
}

TEST_F(SelectHourTest, TheYearIsHighlightedWhileItsScrollBarHasTheFocus) {
  Open("4640200");
  auto* year = Control<QLabel>(&picker, "lblYear");
  const DistinctColours desktop;
  Years()->setFocus();
  EXPECT_EQ(year->palette().color(QPalette::Window), desktop.Of(QPalette::Highlight));
  EXPECT_EQ(year->palette().color(QPalette::WindowText), desktop.Of(QPalette::HighlightedText));
  Days()->setFocus();
  EXPECT_EQ(year->palette().color(QPalette::Window), desktop.Of(QPalette::Button));
  EXPECT_EQ(year->palette().color(QPalette::WindowText), desktop.Of(QPalette::ButtonText));
}

TEST_F(SelectHourTest, TheHourTakesTypedDigitsAlone) {
  Open("4640200");
  Hour()->setFocus();
  Hour()->clear();
  QTest::keyClicks(Hour(), "a1 -x7");
  EXPECT_EQ(Hour()->text(), "17");
  QTest::keyClick(Hour(), Qt::Key_Backspace);
  EXPECT_EQ(Hour()->text(), "1");
}

TEST_F(SelectHourTest, TheHoursTextIsSelectedWhenItGetsTheFocus) {
  Open("4640212");
  Days()->setFocus();
  Hour()->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(Hour()->selectedText(), "12");
}

TEST_F(SelectHourTest, APressOnTheDialSetsTheHourAndRedrawsIt) {
  Open("4640200");
  auto* dial = Control<HourDial>(&picker, "TimeP");
  const QPoint centre(dial->width() / 2, dial->height() / 2);
  QTest::mouseClick(dial, Qt::LeftButton, {}, centre + QPoint(30, 5));
  EXPECT_EQ(Hour()->text(), "3");
  EXPECT_EQ(dial->Hour(), 3);
  QTest::mouseClick(dial, Qt::LeftButton, {}, centre + QPoint(70, 5));
  EXPECT_EQ(Hour()->text(), "15");
  QTest::mouseClick(dial, Qt::LeftButton, {}, QPoint(2, 2));
  EXPECT_EQ(Hour()->text(), "15") << "outside the disc";
  QTest::mouseClick(dial, Qt::LeftButton, {}, centre + QPoint(0, -40));
  EXPECT_EQ(StoppedBy(), 0) << "the middle column of the dial is no dead line";
}

TEST_F(SelectHourTest, TheDialIsPaintedAgainWhenTheHourIsTyped) {
  Open("4640200");
  QApplication::processEvents();
  const PaintCounter paints(Control<HourDial>(&picker, "TimeP"));
  Hour()->setText("7");
  QApplication::processEvents();
  EXPECT_GT(paints.count, 0);
}

TEST_F(SelectHourTest, ADoubleClickOnTheDialIsOk) {
  Open("4640200");
  auto* dial = Control<HourDial>(&picker, "TimeP");
  QTest::mouseDClick(dial, Qt::LeftButton, {}, QPoint(130, 100));
  EXPECT_EQ(picker.Tag.substr(0, 5), "46402");
  EXPECT_FALSE(picker.isVisible());
}

TEST_F(SelectHourTest, TheDialIsDrawnInItsColours) {
  Open("4640215");
  auto* dial = Control<HourDial>(&picker, "TimeP");
  const QImage picture = dial->grab().toImage();
  const int c = dial->width() / 2;
  EXPECT_EQ(picture.pixelColor(c - 20, c - 20), QColor(0, 255, 0)) << "morning";
  EXPECT_EQ(picture.pixelColor(c - 60, c - 40), QColor(255, 0, 0)) << "afternoon";
  EXPECT_EQ(picture.pixelColor(c + 70, c + 15), QColor(0, 0, 128)) << "three in the afternoon";
  Hour()->setText("-3");
  EXPECT_EQ(dial->grab().toImage().pixelColor(c + 70, c + 15), QColor(255, 0, 0)) << "no slice";
}

TEST_F(SelectHourTest, TheLegendHasTheDialsColours) {
  Open("4640200");
  EXPECT_EQ(Control<QWidget>(&picker, "AMSH")->palette().color(QPalette::Window),
            QColor(0, 255, 0));
  EXPECT_EQ(Control<QWidget>(&picker, "PMSH")->palette().color(QPalette::Window),
            QColor(255, 0, 0));
}

TEST_F(SelectHourTest, DisableTimeTurnsTheTimesSideOff) {
  const DistinctColours desktop;
  picker.DisableTime();
  for (const char* name :
       {"TimeP", "lblAM", "lblPM", "lbl24Hour", "lblTime", "txtMinutes", "TimeT"}) {
    EXPECT_FALSE(Control<QWidget>(&picker, name)->isEnabled()) << name;
  }
  EXPECT_TRUE(Days()->isEnabled());
  EXPECT_EQ(Hour()->palette().color(QPalette::Base), desktop.Of(QPalette::Button));
}

TEST_F(SelectHourTest, ATagThatIsNoDateReadsAsDayZero) {
  os.now = kDay;
  Open("rubbish");
  EXPECT_EQ(MarkedText(), "30");  // 30 December 1899, in the present year
  EXPECT_EQ(Months()->currentIndex(), 11);
  EXPECT_EQ(Hour()->text(), "0");
}

TEST_F(SelectHourTest, TheHourIsLeftAloneWhenItGetsTheFocusBack) {
  Open("4640212");
  Hour()->setFocus();
  QApplication::processEvents();
  QTest::keyClick(Hour(), Qt::Key_End);
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  QApplication::processEvents();
  QApplication::setActiveWindow(&picker);
  QApplication::processEvents();
  EXPECT_TRUE(Hour()->hasFocus());
  EXPECT_EQ(Hour()->selectedText(), "");
}

TEST_F(SelectHourTest, NoMoreThanThreeCharactersOfTheHourAreSelected) {
  Open("4640212");
  Days()->setFocus();
  Hour()->setText("12345");
  Hour()->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(Hour()->selectedText(), "123");
}

TEST_F(SelectHourTest, TabMovesTheFocusWhateverIsHeldWithIt) {
  Open("4640212");
  Hour()->setFocus();
  const auto tab = [this](Qt::Key key, Qt::KeyboardModifiers held) {
    QTest::sendKeyEvent(QTest::Click, picker.focusWidget(), key, "\t", held);
    return picker.focusWidget()->objectName();
  };
  EXPECT_EQ(tab(Qt::Key_Backtab, Qt::ShiftModifier), "YearScroll");
  EXPECT_EQ(tab(Qt::Key_Tab, {}), "TimeT");
  EXPECT_EQ(tab(Qt::Key_Tab, {}), "txtMinutes");
  EXPECT_EQ(tab(Qt::Key_Backtab, Qt::ShiftModifier), "TimeT");
  EXPECT_EQ(tab(Qt::Key_Tab, Qt::ControlModifier), "TimeT") << "Control makes it another key";
  Days()->setFocus();
  EXPECT_EQ(tab(Qt::Key_Tab, {}), "MonthList");
  EXPECT_EQ(tab(Qt::Key_Backtab, Qt::ShiftModifier), "DayScroll");
  EXPECT_EQ(Hour()->text(), "12");
}

TEST_F(SelectHourTest, ReturnPressesTheButtonThatHasTheFocus) {
  Open("4640212");
  Control<QWidget>(&picker, "CancelB")->setFocus();
  QTest::keyClick(picker.focusWidget(), Qt::Key_Return);
  EXPECT_EQ(picker.Tag, "");
  EXPECT_FALSE(picker.isVisible());
  Open("4640212");
  Days()->setFocus();
  QTest::keyClick(Days(), Qt::Key_Return);
  EXPECT_EQ(picker.Tag, "4640212") << "elsewhere it is OK";
}

TEST_F(SelectHourTest, EverythingHasANameAndTabGoesFromTopToBottom) {
  Open("4640200");
  ExpectEverythingNamed(&picker);
  ExpectFocusSeen(&picker);
  EXPECT_EQ(TabOrder(&picker), QStringList({"DayScroll", "MonthList", "YearScroll", "TimeT",
                                            "txtMinutes", "OKB", "CancelB"}));
}

}  // namespace
}  // namespace logchecker
