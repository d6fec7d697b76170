// How the cells of narrow tables are drawn.
#include "common/ui/CellDelegate.h"

#include <QImage>
#include <QPainter>
#include <QStandardItemModel>

#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

using CellDelegateTest = WindowTest;

TEST_F(CellDelegateTest, ACellLeavesThePainterAsItWas) {
  QStandardItemModel model(1, 1);
  model.setData(model.index(0, 0), "10:30");
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
