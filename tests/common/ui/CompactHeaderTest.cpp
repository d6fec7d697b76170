// The headings of the narrow tables.
#include "common/ui/CompactHeader.h"

#include <QPainter>
#include <QStandardItemModel>
#include <QTreeView>

#include "common/ui/CompactFont.h"
#include "common/ui/ReportList.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class DrawnHeader : public CompactHeader {
 public:
  using CompactHeader::CompactHeader;
  using CompactHeader::paintSection;
};

class CompactHeaderTest : public WindowTest {
 protected:
  CompactHeaderTest() : model(1, 2) {
    model.setHorizontalHeaderLabels({"MMMM", "WWWW"});
    header.setModel(&model);
  }

  QStandardItemModel model;
  DrawnHeader header{nullptr};
};

TEST_F(CompactHeaderTest, ColumnsStayInTheirOrder) {
  EXPECT_FALSE(header.sectionsMovable());
  EXPECT_EQ(header.minimumSectionSize(), 1);
  EXPECT_EQ(header.font(), CompactFont());
}

TEST_F(CompactHeaderTest, AHeadingHasTheColourOfAButtonsTextAndLeavesThePainterAsItWas) {
  QPalette palette;
  palette.setColor(QPalette::ButtonText, QColor(0, 0, 255));
  header.setPalette(palette);
  QImage image(80, 20, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setPen(QColor(255, 0, 0));
  header.paintSection(&painter, image.rect(), 0);
  EXPECT_EQ(painter.pen().color(), QColor(255, 0, 0));
  painter.end();
  bool blue = false;
  bool red = false;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      blue = blue || image.pixelColor(x, y) == QColor(0, 0, 255);
      red = red || image.pixelColor(x, y) == QColor(255, 0, 0);
    }
  }
  EXPECT_TRUE(blue);
  EXPECT_FALSE(red);
}

TEST_F(CompactHeaderTest, AListOfRowsIsStripedAndIsLeftByTab) {
  QTreeView list;
  SetUpReportList(list);
  EXPECT_TRUE(list.alternatingRowColors());
  EXPECT_TRUE(list.allColumnsShowFocus());
  EXPECT_TRUE(list.uniformRowHeights());
  EXPECT_FALSE(list.rootIsDecorated());
  EXPECT_FALSE(list.tabKeyNavigation());
  EXPECT_EQ(list.editTriggers(), QAbstractItemView::NoEditTriggers);
  EXPECT_EQ(list.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
  EXPECT_EQ(list.font(), CompactFont());
  EXPECT_NE(qobject_cast<CompactHeader*>(list.header()), nullptr);
}

}  // namespace
}  // namespace logchecker
