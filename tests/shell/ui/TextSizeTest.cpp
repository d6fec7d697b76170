// The windows with a text that is larger than usual, from the start or from some time on.
#include <QAbstractButton>
#include <QHeaderView>
#include <QTableView>
#include <QTreeView>
#include <functional>

#include "cartstore/ui/frmCartLocations.h"
#include "common/ui/CompactFont.h"
#include "common/ui/Twips.h"
#include "dialogs/ui/frmSelectHour.h"
#include "shell/ui/frmGeneralSettings.h"
#include "shell/ui/frmSplash.h"
#include "splitlogs/ui/LogGridView.h"
#include "splitlogs/ui/frmLogFileSettings.h"
#include "tests/shell/ui/MainTest.h"

namespace logchecker {
namespace {

// Keeps the toolkit from telling anybody of a new font, as on desktops where it does not know.
class SilentFonts : public QObject {
 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    return watched == qApp && event->type() == QEvent::ApplicationFontChange;
  }
};

class TextSizeTest : public MainTest {
 protected:
  TextSizeTest() : before_(QApplication::font()) {}
  ~TextSizeTest() override {
    main.reset();
    QApplication::setFont(before_);
  }

  void UseText(double timesUsual) const {
    QFont font = before_;
    font.setPointSizeF(timesUsual * before_.pointSizeF());
    QApplication::setFont(font);
    QCoreApplication::processEvents();
  }
  static QTableView& Grid(int16_t n) { return *Control<QTableView>(&Window(n), "gridLog"); }
  static int WidthOf(const QWidget& view, const QString& text) {
    return view.fontMetrics().horizontalAdvance(text);
  }
  static void ExpectFittingGrid(QTableView& grid) {
    EXPECT_EQ(grid.font(), CompactFont());
    EXPECT_EQ(grid.horizontalHeader()->font(), CompactFont());
    EXPECT_EQ(grid.rowHeight(0), CompactRowHeight());
    EXPECT_GT(grid.columnWidth(kTimeColumn), WidthOf(grid, "00:00"));
    EXPECT_GT(grid.columnWidth(kCartColumn), WidthOf(grid, "00000"));
    EXPECT_GT(grid.columnWidth(kLengthColumn), WidthOf(grid, "00:00.00"));
    EXPECT_GT(grid.columnWidth(kDescriptionColumn), WidthOf(grid, "DESCR"));
  }

 private:
  QFont before_;
};

TEST_F(TextSizeTest, UsualSizesLeaveTheColumnsAsTheyAre) {
  for (const double times : {0.8, 1.0, 11.0 / 9}) {
    UseText(times);
    EXPECT_EQ(TableScale(), 1) << times;
    EXPECT_EQ(TableTwips(500), 500) << times;
  }
}

TEST_F(TextSizeTest, TheGridsTextGrowsWithTheDesktopsAndItsColumnsAsMuch) {
  ASSERT_TRUE(Start());
  const int usual = Grid(1).fontInfo().pixelSize();
  const int height = Grid(1).rowHeight(0);
  UseText(2);
  ExpectFittingGrid(Grid(1));
  EXPECT_GE(Grid(1).fontInfo().pixelSize(), 1.5 * usual);
  UseText(3);
  ExpectFittingGrid(Grid(1));
  EXPECT_GE(Grid(1).fontInfo().pixelSize(), 2.1 * usual) << "as far as the face has sizes";
  EXPECT_GT(Grid(1).rowHeight(0), 1.8 * height);
  UseText(1);
  ExpectFittingGrid(Grid(1));
  EXPECT_EQ(Grid(1).fontInfo().pixelSize(), usual);
  EXPECT_EQ(Grid(1).columnWidth(kTimeColumn), ToPixels(500));
}

TEST_F(TextSizeTest, TheResultsFollowToo) {
  ASSERT_TRUE(Start());
  Press("sftCheckBreaks");
  auto& list = *Control<QTreeView>(Results(), "lvwResults");
  const auto row = [&] { return list.visualRect(list.model()->index(0, 0)).height(); };
  const int usual = row();
  for (const double times : {2.0, 1.0}) {
    UseText(times);
    EXPECT_EQ(list.fontInfo().pixelSize(), QFontInfo(CompactFont()).pixelSize());
    EXPECT_EQ(list.header()->fontInfo().pixelSize(), list.fontInfo().pixelSize());
    EXPECT_EQ(row(), CompactRowHeight());
    EXPECT_EQ(list.columnWidth(0), ToPixels(TableTwips(800)));
    auto& heading = *Control<QLabel>(Results(), "Label1");
    EXPECT_LE(heading.heightForWidth(heading.width()), heading.height()) << "all of it is seen";
  }
  EXPECT_EQ(row(), usual);
}

TEST_F(TextSizeTest, ANewFontThatComesWithNewLooksIsTakenAsWell) {
  ASSERT_TRUE(Start());
  const int usual = Grid(1).fontInfo().pixelSize();
  {
    SilentFonts silent;
    qApp->installEventFilter(&silent);
    UseText(2);
    ASSERT_EQ(Grid(1).fontInfo().pixelSize(), usual);
  }
  QEvent looks(QEvent::ThemeChange);
  QApplication::sendEvent(main.get(), &looks);
  QCoreApplication::processEvents();
  ExpectFittingGrid(Grid(1));
  EXPECT_EQ(Control<QLabel>(main.get(), "lblLoadDay")->font().pointSizeF(),
            QApplication::font().pointSizeF());
}

// No text of a label or a button is cut, and the window fits a small screen with its frame.
TEST_F(TextSizeTest, TheDialogsGrowWithTheirTexts) {
  constexpr QSize kRoom(1024 - 16, 600 - 40);
  const std::function<std::unique_ptr<QWidget>()> makers[] = {
      [] { return std::make_unique<frmGeneralSettings>(); },
      [] { return std::make_unique<frmCartLocations>(); },
      [] { return std::make_unique<frmLogFileSettings>(); },
      [] { return std::make_unique<frmSelectHour>(); },
      [] { return std::make_unique<frmSplash>(); }};
  for (const double times : {1.0, 1.5, 2.0}) {
    UseText(times);
    for (const auto& make : makers) {
      const std::unique_ptr<QWidget> window = make();
      window->show();
      QCoreApplication::processEvents();
      const std::string name = window->objectName().toStdString();
      EXPECT_EQ(window->size(), window->size().boundedTo(kRoom)) << name << times;
      for (const QWidget* part : window->findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(part);
        const bool speaks = qobject_cast<const QAbstractButton*>(part) != nullptr ||
                            (label != nullptr && !label->text().isEmpty());
        if (!speaks || !part->isVisible()) continue;
        const bool wraps = label != nullptr && label->wordWrap();
        EXPECT_GE(part->width(), wraps ? 1 : part->minimumSizeHint().width())
            << name << part->objectName().toStdString() << times;
        EXPECT_GE(part->height(),
                  wraps ? label->heightForWidth(part->width()) : part->minimumSizeHint().height())
            << name << part->objectName().toStdString() << times;
      }
    }
  }
}

}  // namespace
}  // namespace logchecker
