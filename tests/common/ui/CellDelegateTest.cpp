// How a cell of the narrow tables is drawn.
#include <QPainter>
#include <QStandardItemModel>

#include "common/ui/CellDelegate.h"
#include "common/ui/CompactFont.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class CellDelegateTest : public WindowTest {
 protected:
  CellDelegateTest() : model(1, 1) {
    palette.setColor(QPalette::Highlight, QColor(1, 2, 3));
    model.setData(model.index(0, 0), "text");
  }
  QImage Draw(bool selected) {
    QImage picture(60, 20, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    QStyleOptionViewItem option;
    option.rect = picture.rect();
    option.palette = palette;
    option.state = QStyle::State_Enabled | QStyle::State_Active;
    option.state.setFlag(QStyle::State_Selected, selected);
    CellDelegate().paint(&painter, option, model.index(0, 0));
    return picture;
  }

  QStandardItemModel model;
  QPalette palette;
};

TEST_F(CellDelegateTest, ASelectedCellOfItsOwnColourKeepsItAndHasAMarker) {
  model.setData(model.index(0, 0), QColor(200, 0, 0), Qt::BackgroundRole);
  model.setData(model.index(0, 0), QColor(255, 255, 255), Qt::ForegroundRole);
  const QImage plain = Draw(false);
  const QImage selected = Draw(true);
  for (int x = 0; x < 3; ++x) {
    EXPECT_EQ(plain.pixelColor(x, 1), QColor(200, 0, 0)) << x;
    EXPECT_EQ(selected.pixelColor(x, 1), QColor(1, 2, 3)) << x;
    EXPECT_EQ(selected.pixelColor(x, 19), QColor(1, 2, 3)) << x;
  }
  EXPECT_EQ(selected.pixelColor(3, 1), QColor(200, 0, 0));
  EXPECT_EQ(selected.pixelColor(59, 1), QColor(200, 0, 0));
}

TEST_F(CellDelegateTest, ASelectedCellWithoutAColourIsHighlightedWhole) {
  EXPECT_EQ(Draw(false).pixelColor(59, 1), QColor(255, 255, 255));
  EXPECT_EQ(Draw(true).pixelColor(1, 1), QColor(1, 2, 3));
  EXPECT_EQ(Draw(true).pixelColor(59, 1), QColor(1, 2, 3));
}

TEST_F(CellDelegateTest, ACellLeavesThePainterAsItWas) {
  model.setData(model.index(0, 0), QColor(Qt::blue), Qt::ForegroundRole);
  QImage image(100, 20, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setPen(QColor(1, 2, 3));
  QFont font = painter.font();
  font.setPointSize(33);
  painter.setFont(font);
  QStyleOptionViewItem option;
  option.rect = image.rect();
  option.font = CompactFont();
  const QImage before = image;
  CellDelegate().paint(&painter, option, model.index(0, 0));
  EXPECT_NE(image, before) << "the text is drawn";
  EXPECT_EQ(painter.pen().color(), QColor(1, 2, 3));
  EXPECT_EQ(painter.font().pointSize(), 33);
}

}  // namespace
}  // namespace logchecker
