// Texts that are cut off, and what tells the whole of them.
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QToolTip>
#include <QTreeView>

#include "common/ui/CutTextTips.h"
#include "common/ui/ReportList.h"
#include "common/ui/StationQString.h"
#include "tests/support/ui/WindowTest.h"

namespace logchecker {
namespace {

class CutTextTest : public WindowTest {
 protected:
  CutTextTest() {
    static const bool held = (HoldCutTextTips(), true);
    Q_UNUSED(held);
  }
  ~CutTextTest() override { QToolTip::hideText(); }

  // What the pointer is told after a rest there.
  static QString TipAt(QWidget* widget, const QPoint& place) {
    QToolTip::showText({}, "none", widget);
    QHelpEvent help(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &help);
    return QToolTip::text() == "none" ? QString() : QToolTip::text();
  }
};

TEST_F(CutTextTest, ABoxAndALabelTellTheWholeOfATextThatIsCut) {
  const QString text = "\\\\server\\<b>a long way to the logs\\of a split";
  QLineEdit box;
  QLabel label;
  const auto check = [&](QWidget& widget, bool cut) {
    widget.show();
    EXPECT_EQ(CutText(&widget), cut ? text : QString());
    EXPECT_EQ(TipAt(&widget, {5, 5}), cut ? AsToolTip(text) : QString());
  };
  box.setText(text);
  label.setTextFormat(Qt::PlainText);
  label.setText(text);
  const int wide = box.fontMetrics().horizontalAdvance(text) + 40;
  for (QWidget* widget : {static_cast<QWidget*>(&box), static_cast<QWidget*>(&label)}) {
    widget->setMinimumSize(1, 1);
    widget->resize(wide, 30);
    check(*widget, false);
    widget->resize(wide / 2, 30);
    check(*widget, true);
  }
  label.setWordWrap(true);
  EXPECT_EQ(CutText(&label), "") << "it takes further lines";
}

TEST_F(CutTextTest, AToolTipOfItsOwnComesFirst) {
  QLineEdit box("a text that is far too long for the box");
  box.setToolTip("own");
  box.resize(30, 25);
  box.show();
  EXPECT_EQ(TipAt(&box, {5, 5}), "own");
}

TEST_F(CutTextTest, ACellTellsTheWholeOfATextThatIsCut) {
  QStandardItemModel model(1, 2);
  QTreeView list;
  SetUpReportList(list);
  list.setModel(&model);
  list.resize(400, 100);
  list.setColumnWidth(0, 60);
  list.setColumnWidth(1, 300);
  list.show();
  const QString text = "a text that fits into one column, <b>not the other";
  for (int column = 0; column < 2; ++column) model.setData(model.index(0, column), text + "   ");
  const auto tip = [&](int column) {
    return TipAt(list.viewport(), list.visualRect(model.index(0, column)).center());
  };
  EXPECT_EQ(tip(0), AsToolTip(text));
  list.setColumnWidth(1, list.fontMetrics().horizontalAdvance(text) + 20);
  EXPECT_EQ(tip(1), "");
  model.setData(model.index(0, 0), "own", Qt::ToolTipRole);
  EXPECT_EQ(tip(0), "own");
}

}  // namespace
}  // namespace logchecker
