// That what is drawn can be told from what it is drawn on, computed from pictures of the windows in
// the colours of a light and of a dark desktop.
#include <QMenuBar>
#include <QScrollBar>
#include <QStyleOptionTitleBar>
#include <QTableView>
#include <QTreeView>
#include <algorithm>
#include <cmath>
#include <map>

#include "dialogs/ui/frmSelectHour.h"
#include "splitlogs/ui/LogGridView.h"
#include "tests/shell/ui/MainTest.h"
#include "tests/support/ui/DarkPalette.h"

namespace logchecker {
namespace {

constexpr double kText = 4.5;
constexpr double kPicture = 3;  // and large texts

double LuminanceOf(QRgb colour) {
  const auto part = [](int value) {
    const double share = value / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour));
}

double Ratio(QRgb one, QRgb other) {
  const auto [dark, light] = std::minmax({LuminanceOf(one), LuminanceOf(other)});
  return (light + 0.05) / (dark + 0.05);
}

QRgb MostFrequent(const QImage& picture) {
  std::map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  }
  const auto more = [](const auto& one, const auto& other) { return one.second < other.second; };
  return std::max_element(counts.begin(), counts.end(), more)->first;
}

// Of the colour that most of the picture has, and the one that stands out from it most.
double ContrastIn(const QImage& picture) {
  if (picture.isNull()) return 0;
  const QRgb background = MostFrequent(picture);
  double best = 1;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      best = std::max(best, Ratio(background, picture.pixel(x, y)));
    }
  }
  return best;
}

class ContrastTest : public MainTest, public testing::WithParamInterface<int> {
 protected:
  ContrastTest() : before_(QApplication::palette()), fontBefore_(QApplication::font()) {
    // Smoothed, thin letters have no pixel of their whole colour.
    QFont sharp = fontBefore_;
    sharp.setStyleStrategy(QFont::NoAntialias);
    QApplication::setFont(sharp);
    if (GetParam() == 1) QApplication::setPalette(DarkPalette());
    WriteLog(2, kTomorrow, Line("06:00", 11) + Line("06:00", 77) + "\r\n" + Log("08:00"));
    EXPECT_TRUE(Start());
  }
  ~ContrastTest() override {
    main.reset();
    QApplication::setPalette(before_);
    QApplication::setFont(fontBefore_);
  }

  static QImage PictureOf(QWidget& widget, const QRect& part) {
    return widget.grab(part).toImage().convertToFormat(QImage::Format_RGB32);
  }
  // A part of a child window's title bar, less the line around a button.
  static QImage TitleBar(QMdiSubWindow& window, QStyle::SubControl control) {
    QStyleOptionTitleBar bar;
    bar.initFrom(&window);
    bar.titleBarFlags = window.windowFlags();
    bar.subControls = QStyle::SC_All;
    QStyle& style = *window.style();
    bar.rect = QRect(0, 0, window.width(), style.pixelMetric(QStyle::PM_TitleBarHeight, &bar));
    const QRect part = style.subControlRect(QStyle::CC_TitleBar, &bar, control, &window);
    const bool button = control != QStyle::SC_TitleBarLabel;
    return PictureOf(window, button ? part.adjusted(3, 3, -3, -3) : part);
  }
  static void ExpectReadableBar(QMdiSubWindow& window) {
    EXPECT_GE(ContrastIn(TitleBar(window, QStyle::SC_TitleBarLabel)), kText);
    for (const auto button : {QStyle::SC_TitleBarMinButton, QStyle::SC_TitleBarMaxButton,
                              QStyle::SC_TitleBarCloseButton}) {
      EXPECT_GE(ContrastIn(TitleBar(window, button)), kPicture) << button;
    }
  }
  static QTableView& Grid(int16_t n) { return *Control<QTableView>(&Window(n), "gridLog"); }
  static QImage Cell(QAbstractItemView& view, int row, int column) {
    return PictureOf(*view.viewport(), view.visualRect(view.model()->index(row, column)));
  }

 private:
  QPalette before_;
  QFont fontBefore_;
};

TEST_P(ContrastTest, TitleBarsOfChildWindows) {
  Area()->setActiveSubWindow(&Window(1));
  ExpectReadableBar(Window(1));
  for (const int16_t inactive : {2, 3}) ExpectReadableBar(Window(inactive));
}

TEST_P(ContrastTest, TheButtonsOfAWindowThatFillsTheFrame) {
  Window(2).showMaximized();
  QCoreApplication::processEvents();
  QWidget* buttons = main->menuBar()->cornerWidget();
  ASSERT_NE(buttons, nullptr);
  const int width = buttons->width() / 3;
  for (int i = 0; i < 3; ++i) {
    const QRect button(i * width, 0, width, buttons->height());
    EXPECT_GE(ContrastIn(PictureOf(*buttons, button.adjusted(4, 4, -4, -4))), kPicture) << i;
  }
}

TEST_P(ContrastTest, ColoursThatChangeWhileTheProgramRuns) {
  QApplication::setPalette(GetParam() == 1 ? QPalette() : DarkPalette());
  QCoreApplication::processEvents();
  ExpectReadableBar(Window(2));
  for (int16_t n = 1; n <= 3; ++n) Window(n).hide();
  EXPECT_EQ(MostFrequent(PictureOf(*Area()->viewport(), Area()->viewport()->rect())),
            QApplication::palette().color(QPalette::Mid).rgb());
}

TEST_P(ContrastTest, CellsOfTheGridSelectedOrNot) {
  QTableView& grid = Grid(2);
  for (const bool selected : {true, false}) {
    if (!selected) grid.clearSelection();
    for (const int row : {0, 1}) {
      EXPECT_GE(ContrastIn(Cell(grid, row, kDescriptionColumn)), kText) << selected;
      const QImage length = Cell(grid, row, kLengthColumn);
      EXPECT_GE(ContrastIn(length), kText) << selected << row;
      // The left edge shows that the row is selected.
      const double marked = Ratio(length.pixel(1, 4), length.pixel(6, 4));
      EXPECT_EQ(marked >= kPicture, selected) << row << marked;
    }
  }
  EXPECT_EQ(MostFrequent(Cell(grid, 1, kLengthColumn)), qRgb(255, 0, 0));
}

TEST_P(ContrastTest, ABreakThatStandsInForAnother) {
  gSplits(2).SelectBreakByTime(6 * 3600 + 60);
  ASSERT_TRUE(Window(2).gridLog.MissedTime());
  const QImage time = Cell(Grid(2), Window(2).gridLog.Row() - 1, kTimeColumn);
  EXPECT_GE(ContrastIn(time), kText);
  const QImage border = time.copy(0, 0, time.width(), 2);
  EXPECT_GE(ContrastIn(border), kPicture);
}

TEST_P(ContrastTest, TheResultsAndWhatIsSetOffInThem) {
  Press("sftCheckBreaks");
  auto& list = *Control<QTreeView>(Results(), "lvwResults");
  ASSERT_GT(list.model()->rowCount(), 0);
  for (const bool selected : {false, true}) {
    if (selected) list.selectAll();
    for (int column = 0; column <= 3; ++column) {
      EXPECT_GE(ContrastIn(Cell(list, 0, column)), kText) << column << selected;
    }
  }
  ExpectReadableBar(*Results());
  for (const char* button : {"cmdSave", "cmdPrint"}) {
    auto& tool = *Control<QToolButton>(Results(), button);
    EXPECT_GE(ContrastIn(PictureOf(tool, tool.rect().adjusted(3, 3, -3, -3))), kPicture) << button;
  }
}

TEST_P(ContrastTest, DaysOfTheCalendarAndThePickedOne) {
  frmSelectHour picker;
  picker.Tag = std::to_string(kTomorrow) + "00";
  picker.show();
  QApplication::setActiveWindow(&picker);
  auto* days = Control<QWidget>(&picker, "DayScroll");
  for (const bool focus : {false, true}) {
    if (focus)
      days->setFocus();
    else
      Control<QWidget>(&picker, "OKB")->setFocus();
    for (const int day : {14, 15, 17}) {
      // The month begins on a Friday.
      const QString name = QString("lblDay%1").arg(day + 4);
      auto& label = *Control<QLabel>(&picker, qPrintable(name));
      Control<QScrollBar>(&picker, "DayScroll")->setValue(day == 14 ? 15 : day);
      const bool sunday = day == 17;
      const QImage digits = PictureOf(label, label.rect().adjusted(2, 2, -2, -2));
      EXPECT_GE(ContrastIn(digits), sunday ? kPicture : kText) << day << focus;
      // Large enough for red, whose contrast is that of a picture.
      if (sunday) {
        EXPECT_TRUE(label.font().bold());
        EXPECT_GE(label.fontInfo().pixelSize(), 14 * 96 / 72.0);
      }
      const QImage edge = PictureOf(label, label.rect());
      if (day != 14) {
        // The line around it, or with the focus what is within.
        const QRgb paper = qRgb(255, 255, 255);
        EXPECT_GE(std::max(Ratio(edge.pixel(0, 0), paper), Ratio(edge.pixel(1, 1), paper)),
                  kPicture)
            << day << focus;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, ContrastTest, testing::Values(0, 1),
                         [](const auto& of) { return of.param == 1 ? "Dark" : "Light"; });

}  // namespace
}  // namespace logchecker
