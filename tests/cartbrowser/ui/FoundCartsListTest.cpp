// The list of what was found under the user's hand: widths, held rows, and rows that come
// meanwhile.
#include <QHeaderView>

#include "tests/cartbrowser/ui/FindCartForm.h"

namespace logchecker {
namespace {

using FoundCartsListTest = FindCartFormTest;

TEST_F(FoundCartsListTest, AColumnKeepsTheWidthThatTheUserGaveIt) {
  FindText("cart");
  List()->setColumnWidth(kFoundLine1, 200);
  const int other = List()->columnWidth(kFoundLine2);
  window->resize(window->width() + 150, window->height());
  QApplication::processEvents();
  EXPECT_EQ(List()->columnWidth(kFoundLine1), 200);
  EXPECT_EQ(List()->columnWidth(kFoundLine2), other);
}

TEST_F(FoundCartsListTest, ARowThatIsHeldStaysTheSelectedOne) {
  FindText("cart");
  const QRect row = List()->visualRect(List()->model()->index(0, kFoundLine1));
  const auto send = [&](QEvent::Type type, QPoint at) {
    QMouseEvent event(type, at, List()->viewport()->mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::LeftButton,
                      {});
    QApplication::sendEvent(List()->viewport(), &event);
  };
  send(QEvent::MouseButtonPress, row.bottomLeft());
  send(QEvent::MouseMove, row.bottomLeft() + QPoint(0, 1));
  EXPECT_EQ(SelectedRow(), 0);
  EXPECT_EQ(List()->Tag, "") << "not yet a drag";
}

TEST_F(FoundCartsListTest, WhereTheUserHasScrolledToRowsStayWhileOthersComeInAbove) {
  for (int16_t cart = 1; cart <= 300; ++cart) PutCart(cart, 30);
  for (const bool selected : {false, true}) {
    walk.atCart = nullptr;
    FindText("*");
    // By number, the last one first: every new row is the head of the list.
    while (!window->results().Descending()) {
      emit List()->header()->sectionClicked(kFoundNumber);
    }
    walk.carts = 0;
    const auto top = [this] { return Cell(List()->indexAt(QPoint()).row(), kFoundNumber); };
    const auto select = [this](int row) {
      List()->selectionModel()->setCurrentIndex(
          List()->model()->index(row, kFoundNumber),
          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    };
    walk.atCart = [&](int cart) {
      if (cart == 100) {
        List()->ShowAddedRows();
        EXPECT_EQ(top(), "100") << "at its head the list shows what comes";
        if (selected) select(0);
        List()->scrollTo(List()->model()->index(50, kFoundNumber),
                         QAbstractItemView::PositionAtTop);
        ASSERT_EQ(top(), "50");
      }
      if (cart == 130 || cart == 180) {
        List()->ShowAddedRows();
        EXPECT_EQ(top(), "50");
        EXPECT_EQ(SelectedRow(), selected ? cart - 100 : -1);
      }
    };
    FindText("*");
    EXPECT_EQ(walk.carts, 300);
  }
}

TEST_F(FoundCartsListTest, AtItsHeadTheListShowsTheRowsThatComeInAbove) {
  for (int16_t cart = 1; cart <= 300; ++cart) PutCart(cart, 30);
  FindText("*");
  while (!window->results().Descending()) emit List()->header()->sectionClicked(kFoundNumber);
  walk.carts = 0;
  walk.atCart = [&](int cart) {
    if (cart < 100 || cart % 5 != 0) return;
    List()->ShowAddedRows();
    EXPECT_EQ(Cell(List()->indexAt(QPoint()).row(), kFoundNumber), QString::number(cart));
  };
  FindText("*");
  EXPECT_EQ(walk.carts, 300);
}

TEST_F(FoundCartsListTest, AKeyGoesOnFromTheRowAsItStandsByThen) {
  FindText("cart");
  for (int click = 0; click < 2; ++click) emit List()->header()->sectionClicked(kFoundNumber);
  walk.carts = 0;
  walk.atCart = [&](int cart) {
    if (cart == 51) {
      List()->ShowAddedRows();
      ASSERT_EQ(Numbers(), QStringList({"50", "5"}));
      List()->selectionModel()->setCurrentIndex(
          List()->model()->index(0, kFoundNumber),
          QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    // The 200th came in above the selected one, and is not on show yet.
    if (cart == 201) QTest::keyClick(List(), Qt::Key_Down);
  };
  FindText("cart");
  EXPECT_EQ(Numbers(), QStringList({"299", "200", "50", "5"}));
  EXPECT_EQ(SelectedRow(), 3);
}

}  // namespace
}  // namespace logchecker
